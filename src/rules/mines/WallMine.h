// The walk that L and R mines share: along a wall that they keep at one hand. Which hand it is, is
// told in MineLTick.cpp and MineRTick.cpp.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// Gives each mine of a kind its turn and its kill. `hand` is LeftOf or RightOf: the quarter turn
/// towards the hand at which the kind keeps its wall. Returns at once when the player dies.
void WallMineTick(Board& board, Kind kind, Heading (*hand)(Heading));

} // namespace tumbledeep
