// From the text of a map to the board that is played, without a window or a host.
#pragma once

#include "formats/MapText.h"
#include "world/Board.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tumbledeep {

/// Puts a line's object onto the board: one sprite, or the player's place. Throws Failure at a
/// line's fault or when a pool is full; what was made before the fault stays, the sprite hidden.
void PutOnBoard(Board& board, const MapLine& line);

/// Plays the part of the loader: all lines, then the board's set-up. Both seedings of the random
/// numbers take `seed`. Throws Failure as PutOnBoard does; titles say nothing here.
Board LoadMap(std::string bytes, std::uint32_t seed);

} // namespace tumbledeep
