// The falling bomb: it moves like a rock and goes off in the last free cell of its fall.
#include "board/frmDocument.h"

namespace tumbledeep {

void frmDocument::MineTTick() {
    DrawRollSide();
    const int count = MovingMineT.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!MovingMineT.Shown(PoolIndex)) continue;
        const PoolSprite mine = MovingMineT[PoolIndex];
        switch (Area(Near(mine, Below))) {
        case Kind::Empty: {
            const bool lands = Area(Near(mine, Below + Below)) != Kind::Empty;
            MoveSprite(mine, Below, Kind::MovingMineT);
            if (!lands) break;
            mine.Visible = false;
            SpawnObject(KindText(Kind::Bang), mine.Left, mine.Top, TagOf(Heading::Down));
            break;
        }
        case Kind::Gem1Type:
        case Kind::RoundRock:
        case Kind::MovingMineT: Roll(mine, Kind::MovingMineT); break;
        default: break;
        }
    }
}

} // namespace tumbledeep
