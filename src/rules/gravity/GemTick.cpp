// One turn for each gem: it falls a cell, is taken by the player below it, rolls to a side, or
// rests. Gems hurt nobody. Their number is CheckGameEnd's to count.
#include "rules/gravity/Restless.h"

namespace tumbledeep {

void Board::GemTick() {
    const RollSide side = DrawRollSide();
    const Pool& gems = Pools[Kind::Gem1Type];
    for (const int gem : Restless(*this, Kind::Gem1Type, side)) {
        switch (Area(gems.CellOf(gem, Below))) {
        case Kind::Empty: MoveSprite(Kind::Gem1Type, gem, Below); break;
        case Kind::You: TakeAway(Kind::Gem1Type, gem); break; // one at rest too
        case Kind::Gem1Type:
        case Kind::RoundRock:
        case Kind::MovingMineT: Roll(Kind::Gem1Type, gem, side); break;
        default: break;
        }
    }
}

} // namespace tumbledeep
