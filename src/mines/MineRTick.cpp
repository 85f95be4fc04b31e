// The mine that keeps a wall at its right hand.
#include "mines/WallMine.h"

namespace tumbledeep {

void frmDocument::MineRTick() {
    static constexpr WallMine Rules{&frmDocument::MovingMineR,
                                    Kind::MovingMineR,
                                    Picture::MovingMineRUpPic,
                                    {{Heading::Right, Heading::Left, Heading::Up, Heading::Down}}};
    WallMineTick(Rules);
}

} // namespace tumbledeep
