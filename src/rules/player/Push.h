// Pushing rocks and T mines to the left and right.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// Moves what the player pushes out of the next cell that way, if the cell beyond is free. A way
/// up or down pushes nothing.
void Push(Board& board, Heading way);

} // namespace tumbledeep
