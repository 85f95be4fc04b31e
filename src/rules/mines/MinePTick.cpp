// One turn for each P mine, the hunter that runs straight on and turns towards the player only when
// blocked. It kills what stands next to it in the end. The step and the aim are Hunter's.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

void Board::MinePTick() {
    const Pool& mines = Pools[Kind::MovingMineP];
    for (const int mine : mines.InTurn()) {
        if (const auto heading = mines.HeadingOf(mine)) {
            HunterBlock(*this, Kind::MovingMineP, mine, *heading, Aims::WhenBlocked);
            // A turn to up or down is tried in the same call, one to left or right is not;
            // tests/films/MinesTest.cpp pins it.
            const auto turned = mines.HeadingOf(mine);
            if (!IsVertical(*heading) && IsVertical(*turned)) {
                HunterBlock(*this, Kind::MovingMineP, mine, *turned, Aims::WhenBlocked);
            }
        }
        if (TouchesYou(Kind::MovingMineP, mine)) return YouDie();
    }
}

} // namespace tumbledeep
