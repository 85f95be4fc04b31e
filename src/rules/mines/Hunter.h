// The step and the aim that P and PP mines share.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// When a hunter aims anew.
enum class Aims : std::uint8_t { WhenBlocked, Always };

/// One try of a hunting mine: the step ahead, and the turn towards the player.
void HunterBlock(Board& board, Kind kind, int mine, Heading heading, Aims aims);

} // namespace tumbledeep
