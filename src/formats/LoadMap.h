// From the text of a map to the board that is played, without a window or a host: what a solver, a
// test or a benchmark needs. The window loads line by line, as it shows titles and places its view;
// see windows/flow/LoadNewMap.cpp.
#pragma once

#include "formats/MapText.h"
#include "world/Board.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tumbledeep {

/// Puts a line's object onto the board: one sprite, or the player's place; a line without an object
/// does nothing. The line's fault or a full pool is thrown as Failure. What was made before the
/// fault stays, the sprite hidden.
void PutOnBoard(Board& board, const MapLine& line);

/// Reads all lines of a map's bytes and sets the board up. The random numbers are seeded with
/// `seed` twice: before the lines, which draw pictures, and for play. Throws Failure as PutOnBoard
/// does. Titles are passed over.
Board LoadMap(std::string bytes, std::uint32_t seed);
/// The same from records that have been read already.
Board LoadMap(const std::vector<Record>& map, std::uint32_t seed);

} // namespace tumbledeep
