// The hunter that runs straight on and turns towards the player only when blocked.
#include "mines/Hunter.h"

namespace tumbledeep {

void frmDocument::MinePTick() {
    static constexpr Hunter Rules{Kind::MovingMineP, Picture::MovingMinePUpPic, false};
    const int count = MovingMineP.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!MovingMineP.Shown(PoolIndex)) continue;
        const PoolSprite mine = MovingMineP[PoolIndex];
        // The tag is read anew for each, so a turn to up or down is tried in the same call.
        for (const Heading heading : {Heading::Right, Heading::Left, Heading::Up, Heading::Down}) {
            if (mine.Tag == TagOf(heading)) HunterBlock(mine, Rules, heading);
        }
        if (TouchesYou(mine)) YouDie();
    }
}

} // namespace tumbledeep
