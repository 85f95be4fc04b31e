// The hunter that takes a fresh aim at every turn and closes in on a staircase.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

void Board::MinePPTick() {
    const Pool& mines = Pools[Kind::MovingMinePP];
    for (const int mine : mines.InTurn()) {
        if (const auto heading = mines.HeadingOf(mine)) {
            HunterBlock(*this, Kind::MovingMinePP, mine, *heading, Aims::Always);
        }
        if (TouchesYou(mines[mine])) return YouDie();
    }
}

} // namespace tumbledeep
