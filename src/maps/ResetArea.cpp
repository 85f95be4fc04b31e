// The pictures of the mines' headings, and the gem total.
#include "board/frmDocument.h"

#include <array>
#include <utility>

namespace tumbledeep {

void frmDocument::ResetArea() {
    const std::array<std::pair<Pool*, Picture>, 5> mines{{
        {&MovingMineL, Picture::MovingMineLUpPic},
        {&MovingMineR, Picture::MovingMineRUpPic},
        {&MovingMineFL, Picture::MovingMineFLUpPic},
        {&MovingMineP, Picture::MovingMinePUpPic},
        {&MovingMinePP, Picture::MovingMinePPUpPic},
    }};
    for (const auto& [pool, upPic] : mines) {
        for (PoolIndex = 0; PoolIndex < pool->Count(); ++PoolIndex) {
            const PoolSprite mine = (*pool)[PoolIndex];
            const auto heading = HeadingOf(mine.Tag);
            if (mine.Visible && heading) CopyPicture(mine, HeadingPicture(upPic, *heading));
        }
    }
    GemTotal = static_cast<std::int16_t>(Gem1Type.Count());
}

} // namespace tumbledeep
