// The lines of a map as values: a record goes in, and what it says comes out, an object, a title or
// nothing, with its fault if it has one. Nothing is put on a board here: that is LoadMap's.
#pragma once

#include "formats/FieldInput.h"
#include "world/Kind.h"

#include <optional>
#include <string>
#include <string_view>

namespace tumbledeep {

/// What is wrong with a number of a line.
struct MapFault {
    int Number;       ///< Failure::TypeMismatch, or Failure::Overflow for a number too large
    std::string Word; ///< the word at fault, "" where one is missing
    int Column;       ///< where that word stands in its line, in bytes from 1
};

/// The fault in words: ""36o" is no number".
std::string FaultText(const MapFault& fault);

/// A line of a map. What a faulty one has before its fault is kept, since it is put on the board.
struct MapLine {
    enum class Is { Nothing, Title, Object };
    Is What = Is::Nothing;
    int Line = 1;                  ///< in the file, from 1
    Kind Which = Kind::Empty;      ///< of an object; never Empty or Bang then
    std::optional<float> Top;      ///< of an object, in twips; none from the fault on
    std::optional<float> Left;     ///< likewise
    std::string Text;              ///< a title's text, or the tag of an object that has one
    std::optional<MapFault> Fault; ///< the first number that can't be read
};

/// Reads one record. A first word that is unknown or empty, and a title without a text, make a line
/// that says nothing.
MapLine ReadMapLine(const Record& record);

/// The line that puts an object at a place, in twips; `tag` is "" for kinds that have none.
std::string ObjectLine(Kind kind, float top, float left, std::string_view tag = {});

/// The word that begins at a character, counted from 1, and ends before the next blank; "" when a
/// blank stands there, or nothing.
std::string_view WordAt(std::string_view text, std::size_t start);

/// What stands behind the last blank: "" if the text ends in one, all of it if it has none.
std::string_view LastWord(std::string_view text);

} // namespace tumbledeep
