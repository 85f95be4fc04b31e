// The mine that keeps a wall at its left hand.
#include "rules/mines/WallMine.h"

namespace tumbledeep {

void Board::MineLTick() { WallMineTick(*this, Kind::MovingMineL, LeftOf); }

} // namespace tumbledeep
