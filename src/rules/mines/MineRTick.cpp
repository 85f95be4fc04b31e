// One turn for each R mine, the patrol that keeps a wall at its right hand. The walk and the kill
// are in WallMine.cpp, shared with the L mine.
#include "rules/mines/WallMine.h"

namespace tumbledeep {

void Board::MineRTick() { WallMineTick(*this, Kind::MovingMineR, Hand::Right); }

} // namespace tumbledeep
