// One turn for each PP mine, the hunter that aims anew every time and so closes in on the player on
// a staircase. It kills what stands next to it in the end. The step and the aim are Hunter's.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

void Board::MinePPTick() {
    const Pool& mines = Pools[Kind::MovingMinePP];
    for (const int mine : mines.InTurn()) {
        if (const auto heading = mines.HeadingOf(mine)) {
            HunterBlock(*this, Kind::MovingMinePP, mine, *heading, Aims::Always);
        }
        if (TouchesYou(Kind::MovingMinePP, mine)) return YouDie();
    }
}

} // namespace tumbledeep
