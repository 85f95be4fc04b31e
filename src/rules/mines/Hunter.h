// The step and the aim that P and PP mines share. When each of them has its turns, and how they
// kill, is in MinePTick.cpp and MinePPTick.cpp.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// When a hunter turns towards the player.
enum class Aims : std::uint8_t { WhenBlocked, Always };

/// One try of a mine with that heading: a step ahead if the cell is empty, and the turn towards the
/// player if the step failed or `aims` is Always.
void HunterBlock(Board& board, Kind kind, int mine, Heading heading, Aims aims);

} // namespace tumbledeep
