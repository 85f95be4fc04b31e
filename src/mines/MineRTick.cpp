// The mine that keeps a wall at its right hand.
#include "mines/WallMine.h"

namespace tumbledeep {

void frmDocument::MineRTick() {
    static constexpr WallMine Rules{&frmDocument::MovingMineR, Kind::MovingMineR,
                                    Picture::MovingMineRUpPic, RightOf};
    WallMineTick(Rules);
}

} // namespace tumbledeep
