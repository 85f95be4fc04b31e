// Pushing rocks and T mines to the left and right. The player's own step, before which a push
// comes, is MoveYou's.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// Moves the rock or T mine in the next cell that way one cell on, if the cell beyond is empty, and
/// takes the player's readiness. Otherwise, and for up and down, nothing happens.
void Push(Board& board, Heading way);

} // namespace tumbledeep
