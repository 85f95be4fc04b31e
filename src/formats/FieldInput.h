// Field-wise text input, by which maps and map lists are read: the bytes of a file go in, records
// come out that end at a comma or a line end. What a record says is told in MapText.h and
// MapList.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

/// A record and where it begins in its file.
struct Record {
    std::string Text; ///< without the quotes, if it stands in quotes
    int Line = 1;     ///< from 1
    int Column = 1;   ///< in bytes, from 1; the opening quote's, if there is one
};

class FieldInput {
  public:
    /// Takes the bytes of the file. Lines end in CR LF, LF alone or CR alone; a UTF-8 byte order
    /// mark in front is passed over.
    explicit FieldInput(std::string bytes);

    /// True when no record is left. Behind a line end at the file's end there is none.
    bool AtEnd() const { return position >= text.size(); }

    /// How much has been read, from 0 to 1.
    double Share() const;

    /// The next record, without the blanks before it. One in double quotes runs to the next quote,
    /// over commas and line ends; what stands behind that up to a comma or line end is dropped. A
    /// record with an empty text when none is left.
    Record Next();

  private:
    /// Goes on to the next comma or line end, or to the end.
    void ToDelimiter();
    /// Steps over the character that stands here, or over a whole line end, and counts that.
    void PassCharacter();

    std::string text;
    std::size_t position = 0;  ///< "here": the first byte that is not read yet
    std::size_t lineStart = 0; ///< where the line begins in which that is
    int line = 1;              ///< the number of that line
};

/// All records of a file's bytes.
std::vector<Record> ReadRecords(std::string bytes);

/// Whether a file can be written that is read as this text. A text can't hold both a quote and what
/// takes quotes; no record that was read does.
bool CanWrite(std::string_view text);

/// The bytes of a file that is read as these texts: one to a line, in quotes where it would be cut
/// or lose blanks without them.
std::string WriteRecords(const std::vector<Record>& records);

} // namespace tumbledeep
