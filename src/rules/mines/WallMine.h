// The walk that L and R mines share: along a wall that they keep at one hand. Which hand it is, is
// told in MineLTick.cpp and MineRTick.cpp.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// The hand at which a kind keeps its wall.
enum class Hand : std::uint8_t { Left, Right };

/// Gives each mine of a kind its turn and its kill. Returns at once when the player dies.
void WallMineTick(Board& board, Kind kind, Hand hand);

} // namespace tumbledeep
