// The hunter that takes a fresh aim at every turn and closes in on a staircase.
#include "mines/Hunter.h"

namespace tumbledeep {

void frmDocument::MinePPTick() {
    static constexpr Hunter Rules{Kind::MovingMinePP, Picture::MovingMinePPUpPic, true};
    const int count = MovingMinePP.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!MovingMinePP.Shown(PoolIndex)) continue;
        const PoolSprite mine = MovingMinePP[PoolIndex];
        if (const auto heading = HeadingOf(mine.Tag)) HunterBlock(mine, Rules, *heading);
        if (TouchesYou(mine)) YouDie();
    }
}

} // namespace tumbledeep
