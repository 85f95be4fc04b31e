// The hunter that runs straight on and turns towards the player only when blocked.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

void Board::MinePTick() {
    const Pool& mines = Pools[Kind::MovingMineP];
    for (const int mine : mines.InTurn()) {
        // The tag is read anew for each, so a turn to up or down is tried in the same call.
        for (const Heading heading : {Heading::Right, Heading::Left, Heading::Up, Heading::Down}) {
            if (mines.HeadingOf(mine) != heading) continue;
            HunterBlock(*this, Kind::MovingMineP, mine, heading, Aims::WhenBlocked);
        }
        if (TouchesYou(mines[mine])) return YouDie();
    }
}

} // namespace tumbledeep
