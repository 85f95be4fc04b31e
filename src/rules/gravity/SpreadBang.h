// What a blast does to the nine cells round it.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// Spreads the Bang at an index of its pool. Ends at once when it kills the player.
void SpreadBang(Board& board, int bang);

} // namespace tumbledeep
