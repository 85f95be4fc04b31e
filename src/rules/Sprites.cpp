// What several rules do to a sprite: move, take away, roll. A move keeps the sprite and its
// cell in the grid in step. What only one rule does stands in that rule's file.
#include "world/Board.h"

namespace tumbledeep {

void Board::MoveSprite(Kind kind, int index, Offset offset) {
    Pool& pool = Pools[kind];
    Area.Set(pool.CellOf(index), Kind::Empty);
    Area.Set(pool.CellOf(index, offset), kind);
    pool.Move(index, offset);
}

void Board::TakeAway(Kind kind, int index) {
    Area.Set(Pools[kind].CellOf(index), Kind::Empty);
    Pools[kind].Hide(index);
}

RollSide Board::DrawRollSide() { return random.Rnd() < 0.5F ? RollSide::Right : RollSide::Left; }

void Board::Roll(Kind kind, int index, RollSide side) {
    const Offset way = WayOf(side);
    const Pool& pool = Pools[kind];
    if (Area(pool.CellOf(index, way + Below)) == Kind::Empty &&
        Area(pool.CellOf(index, way)) == Kind::Empty) {
        MoveSprite(kind, index, way);
    }
}

} // namespace tumbledeep
