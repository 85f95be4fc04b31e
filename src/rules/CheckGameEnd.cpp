// Won or dead. Runs at every multiple of 10 ticks.
#include "world/Board.h"

namespace tumbledeep {

void Board::CheckGameEnd() {
    // Both counts include the template. Gems that a factory made as new sprites lie outside
    // `GemTotal`, so a map can be won with such a gem still on the board, and one that passes 0
    // between two counts is never won; tests/films/GameEndTest.cpp pins both.
    GemsLeft = To16(GemTotal - Pools[Kind::Gem1Type].HiddenCount());
    if (GemsLeft == 0) {
        Result = Outcome::Won;
        return;
    }
    if (YouDead) YouDie();
}

} // namespace tumbledeep
