// The walk of the L and R mines along whatever they meet.
#include "mines/WallMine.h"

namespace tumbledeep {

void frmDocument::WallMineTick(const WallMine& rules) {
    Pool& mines = this->*rules.Mines;
    const int count = mines.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!mines.Shown(PoolIndex)) continue;
        const PoolSprite mine = mines[PoolIndex];
        WallMineTurn(mine, rules);
        if (TouchesYou(mine)) YouDie();
    }
}

/// At most one step and one turn. A mine whose tag is no heading stands still.
void frmDocument::WallMineTurn(PoolSprite mine, const WallMine& rules) {
    const auto heading = HeadingOf(mine.Tag);
    if (!heading) return;
    const Heading hand = rules.Hand(*heading);
    const Heading far = Opposite(hand);
    const auto handIsFree = [&] { return Area(Near(mine, Ahead(hand))) == Kind::Empty; };

    if (Area(Near(mine, Ahead(*heading))) == Kind::Empty) {
        MoveSprite(mine, Ahead(*heading), rules.Cell);
        if (handIsFree()) Turn(mine, hand, rules.UpPic);
    } else {
        Turn(mine, handIsFree() ? hand : far, rules.UpPic);
    }
}

} // namespace tumbledeep
