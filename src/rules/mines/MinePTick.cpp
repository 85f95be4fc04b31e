// One turn for each P mine, the hunter that runs straight on and turns towards the player only when
// blocked. It kills what stands next to it in the end. The step and the aim are Hunter's.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

void Board::MinePTick() {
    const Pool& mines = Pools[Kind::MovingMineP];
    for (const int mine : mines.InTurn()) {
        // Each asks for the heading that the mine has by now: a turn to up or down is tried in the
        // same call, one to left or right is not; tests/films/MinesTest.cpp pins it.
        for (const Heading heading : {Heading::Right, Heading::Left, Heading::Up, Heading::Down}) {
            if (mines.HeadingOf(mine) != heading) continue;
            HunterBlock(*this, Kind::MovingMineP, mine, heading, Aims::WhenBlocked);
        }
        if (TouchesYou(Kind::MovingMineP, mine)) return YouDie();
    }
}

} // namespace tumbledeep
