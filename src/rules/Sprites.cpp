// What several rules do to a sprite: move, take away, turn, roll. A move keeps the sprite and its
// cell in the grid in step. What only one rule does stands in that rule's file.
#include "world/Board.h"

#include <algorithm>

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

void Board::Turn(Kind kind, int index, Heading heading) {
    Pools[kind].SetHeading(index, heading);
    Pools[kind].Dress(index, HeadingPicture(RowOf(kind).UpPic, heading));
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

bool Board::TouchesYou(Kind kind, int index) const {
    const Pool& pool = Pools[kind];
    return std::any_of(Headings.begin(), Headings.end(), [&](Heading way) {
        return Area(pool.CellOf(index, Ahead(way))) == Kind::You;
    });
}

} // namespace tumbledeep
