// The life of a Bang: it stands until the next call, spreads once and is gone. What a blast does to
// the cells round it is SpreadBang's.
#include "rules/gravity/SpreadBang.h"

namespace tumbledeep {

void Board::BangTick() {
    // A blast makes Bangs of mines. One that is a new sprite has its turn in the next call, one
    // that is a hidden sprite further on in this one. So it depends on the pool how fast a chain
    // runs; tests/films/BlastTest.cpp pins it.
    for (const int bang : Pools[Kind::Bang].InTurn()) {
        SpreadBang(*this, bang);
        if (Result != Outcome::Running) return;
        TakeAway(Kind::Bang, bang);
    }
}

} // namespace tumbledeep
