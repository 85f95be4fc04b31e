// Field-wise text input: a file as a row of records that end at a comma or a line end.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

/// A record and where it begins in its file, both counted from 1; columns count bytes.
struct Record {
    std::string Text;
    int Line = 1;
    int Column = 1;
};

class FieldInput {
  public:
    FieldInput() = default;
    /// Takes the bytes of the file; a UTF-8 byte order mark in front is passed over.
    explicit FieldInput(std::string bytes);

    /// True when no record is left. A file that ends in a line end has none behind it.
    bool AtEnd() const { return position >= text.size(); }

    /// The next record, without the blanks before it. One in double quotes runs to the next quote,
    /// over commas and line ends, and what follows it up to its end is dropped. "" at the end.
    Record Next();

  private:
    std::string_view Until(std::string_view stops);
    void PassDelimiter();
    /// Counts the line ends between the last place counted and here.
    void CountLines();

    std::string text;
    std::size_t position = 0;
    std::size_t counted = 0;   ///< up to where lines are counted
    std::size_t lineStart = 0; ///< where the line of that place begins
    int line = 1;
};

} // namespace tumbledeep
