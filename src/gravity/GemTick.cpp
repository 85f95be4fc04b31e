// The gravity of gems: that of rocks without the violence.
#include "board/frmDocument.h"

namespace tumbledeep {

void frmDocument::GemTick() {
    DrawRollSide();
    const int count = Gem1Type.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!Gem1Type.Shown(PoolIndex)) continue;
        const PoolSprite gem = Gem1Type[PoolIndex];
        switch (Area(Near(gem, Below))) {
        case Kind::Empty: MoveSprite(gem, Below, Kind::Gem1Type); break;
        case Kind::You: // taken, whether it was moving or not
            Area(Near(gem)) = Kind::Empty;
            gem.Visible = false;
            break;
        case Kind::Gem1Type:
        case Kind::RoundRock:
        case Kind::MovingMineT: Roll(gem, Kind::Gem1Type); break;
        default: break;
        }
    }
}

} // namespace tumbledeep
