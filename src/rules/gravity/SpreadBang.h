// What a blast does to the nine cells round a Bang. When a Bang spreads, and that it is gone then,
// is BangTick's.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// Spreads the Bang at an index of its pool, over its own cell and the eight round it. When it
/// kills the player it returns at once, with the rest of the cells as they are. The Bang itself
/// stays.
void SpreadBang(Board& board, int bang);

} // namespace tumbledeep
