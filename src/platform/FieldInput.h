// Field-wise text input: a file as a row of records that end at a comma or a line end.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

class FieldInput {
  public:
    FieldInput() = default;
    /// Takes the bytes of the file; a UTF-8 byte order mark in front is passed over.
    explicit FieldInput(std::string bytes);

    /// True when no record is left. A file that ends in a line end has none behind it.
    bool AtEnd() const { return position >= text.size(); }

    /// The next record, without the blanks before it. One in double quotes runs to the next quote,
    /// over commas and line ends, and what follows it up to its end is dropped. "" at the end.
    std::string Next();

  private:
    std::string_view Until(std::string_view stops);
    void PassDelimiter();

    std::string text;
    std::size_t position = 0;
};

} // namespace tumbledeep
