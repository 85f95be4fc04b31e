// Whether the map is won or the player dead: counts the gems anew at every multiple of 10 ticks and
// leaves the answer in `Result`. The boxes and the next map are windows/flow/EndMap.cpp's.
#include "world/Board.h"

namespace tumbledeep {

void Board::CheckGameEnd() {
    // `GemTotal` has the hidden template in it, and so has the count of hidden gems. Gems that a
    // factory makes as new sprites are not in `GemTotal`: a map can be won with such a gem still on
    // the board, and where the number passes 0 between two counts it is never won.
    // tests/films/GameEndTest.cpp pins both.
    GemsLeft = To16(GemTotal - Pools[Kind::Gem1Type].HiddenCount());
    if (GemsLeft == 0) {
        Result = Outcome::Won;
        return;
    }
    if (YouDead) YouDie();
}

} // namespace tumbledeep
