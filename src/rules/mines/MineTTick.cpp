// One turn for each T mine, the falling bomb: it falls and rolls like a rock, and goes off in the
// last empty cell of its fall. It kills by its Bang alone; pushing it is player/Push.cpp's.
#include "rules/gravity/Restless.h"

namespace tumbledeep {

namespace {

/// One cell down. If the next cell below is not empty, the mine goes off where it is then.
void Fall(Board& board, int mine) {
    Pool& mines = board.Pools[Kind::MovingMineT];
    const bool lands = board.Area(mines.CellOf(mine, Below + Below)) != Kind::Empty;
    board.MoveSprite(Kind::MovingMineT, mine, Below);
    if (!lands) return;
    mines.Hide(mine);
    board.SpawnObject(Kind::Bang, mines[mine].Left, mines[mine].Top, Heading::Down);
}

} // namespace

void Board::MineTTick() {
    const RollSide side = DrawRollSide();
    const Pool& mines = Pools[Kind::MovingMineT];
    for (const int mine : Restless(*this, Kind::MovingMineT, side)) {
        switch (Area(mines.CellOf(mine, Below))) {
        case Kind::Empty: Fall(*this, mine); break;
        case Kind::Gem1Type:
        case Kind::RoundRock:
        case Kind::MovingMineT: Roll(Kind::MovingMineT, mine, side); break;
        default: break;
        }
    }
}

} // namespace tumbledeep
