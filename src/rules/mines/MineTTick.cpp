// The falling bomb: it moves like a rock and goes off in the last free cell of its fall.
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// One cell down; with anything but a free cell below that, the mine goes off there.
void Fall(Board& board, int mine) {
    Pool& mines = board.Pools[Kind::MovingMineT];
    const Sprite& sprite = mines[mine];
    const bool lands = board.Area(CellOf(sprite, Below + Below)) != Kind::Empty;
    board.MoveSprite(Kind::MovingMineT, mine, Below);
    if (!lands) return;
    mines.Hide(mine);
    board.SpawnObject(Kind::Bang, sprite.Left, sprite.Top, Heading::Down);
}

} // namespace

void Board::MineTTick() {
    const RollSide side = DrawRollSide();
    const Pool& mines = Pools[Kind::MovingMineT];
    for (const int mine : mines.InTurn()) {
        switch (Area(CellOf(mines[mine], Below))) {
        case Kind::Empty: Fall(*this, mine); break;
        case Kind::Gem1Type:
        case Kind::RoundRock:
        case Kind::MovingMineT: Roll(Kind::MovingMineT, mine, side); break;
        default: break;
        }
    }
}

} // namespace tumbledeep
