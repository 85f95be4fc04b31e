// The mine that keeps a wall at its right hand.
#include "rules/mines/WallMine.h"

namespace tumbledeep {

void Board::MineRTick() { WallMineTick(*this, Kind::MovingMineR, RightOf); }

} // namespace tumbledeep
