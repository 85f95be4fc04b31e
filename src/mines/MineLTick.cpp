// The mine that keeps a wall at its left hand.
#include "mines/WallMine.h"

namespace tumbledeep {

void frmDocument::MineLTick() {
    static constexpr WallMine Rules{&frmDocument::MovingMineL, Kind::MovingMineL,
                                    Picture::MovingMineLUpPic, LeftOf};
    WallMineTick(Rules);
}

} // namespace tumbledeep
