// One turn for each L mine, the patrol that keeps a wall at its left hand. The walk and the kill
// are in WallMine.cpp, shared with the R mine.
#include "rules/mines/WallMine.h"

namespace tumbledeep {

void Board::MineLTick() { WallMineTick(*this, Kind::MovingMineL, Hand::Left); }

} // namespace tumbledeep
