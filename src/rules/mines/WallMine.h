// The walk of the L and R mines along whatever they meet.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// Gives each mine of a kind its turn and its kill. `hand` is a quarter turn towards the hand at
/// which the kind keeps its wall.
void WallMineTick(Board& board, Kind kind, Heading (*hand)(Heading));

} // namespace tumbledeep
