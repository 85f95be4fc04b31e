// A map's text as values: each record becomes what it says, with its place in the file.
#pragma once

#include "formats/FieldInput.h"
#include "world/Kind.h"

#include <optional>
#include <string>
#include <string_view>

namespace tumbledeep {

/// What is wrong with a number of a line.
struct MapFault {
    int Number;       ///< of the failure that the player is shown
    std::string Word; ///< the word that is no number, or too large a one
    int Column;       ///< where that word stands in its line, from 1
};

/// A line of a map. What a faulty one has before its fault is kept, since it stays on the board.
struct MapLine {
    enum class Is { Nothing, Title, Object };
    Is What = Is::Nothing;
    int Line = 1;
    Kind Which = Kind::Empty; ///< of an object, the player and factories included
    std::optional<float> Top; ///< twips; empty from the fault on
    std::optional<float> Left;
    std::string Text;              ///< of a title; the tag of an object that has one
    std::optional<MapFault> Fault; ///< at the first number that can't be read
};

/// Reads one record. An unknown first word, an empty one or a title without a text says nothing.
MapLine ReadMapLine(const Record& record);

/// The word that begins at a character, counted from 1; "" at a blank or behind the end.
std::string_view WordAt(std::string_view text, std::size_t start);

/// What stands behind the last blank.
std::string_view LastWord(std::string_view text);

} // namespace tumbledeep
