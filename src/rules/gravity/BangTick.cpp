// The life of a Bang: it waits for the next call, spreads once and is gone.
#include "rules/gravity/SpreadBang.h"

namespace tumbledeep {

void Board::BangTick() {
    // A Bang spawned as a new sprite waits for the next call; one spawned into a hidden sprite
    // further on is served in this one. Chains take their time by it.
    for (const int bang : Pools[Kind::Bang].InTurn()) {
        SpreadBang(*this, bang);
        if (Result != Outcome::Running) return;
        TakeAway(Kind::Bang, bang);
    }
}

} // namespace tumbledeep
