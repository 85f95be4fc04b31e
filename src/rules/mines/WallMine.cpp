// How a patrol walks: ahead while it can, round each corner that opens at its hand, and on the spot
// when it is blocked. L and R mines differ in one thing, the hand at which they keep their wall.
#include "rules/mines/WallMine.h"

namespace tumbledeep {

namespace {

/// At most one step and one turn.
void TakeTurn(Board& board, Kind kind, int mine, Heading heading, Heading hand) {
    Pool& mines = board.Pools[kind];
    const auto isFree = [&](Heading way) {
        return board.Area(mines.CellOf(mine, Ahead(way))) == Kind::Empty;
    };
    if (isFree(heading)) {
        board.MoveSprite(kind, mine, Ahead(heading));
        if (isFree(hand)) mines.Turn(mine, hand);
    } else {
        // It turns to the far side even if that is blocked; tests/films/MinesTest.cpp pins it.
        mines.Turn(mine, isFree(hand) ? hand : Opposite(hand));
    }
}

} // namespace

void WallMineTick(Board& board, Kind kind, Hand hand) {
    const Pool& mines = board.Pools[kind];
    for (const int mine : mines.InTurn()) {
        // A mine whose tag is no heading stands still, and kills all the same.
        if (const auto heading = mines.HeadingOf(mine)) {
            const Heading side = hand == Hand::Left ? LeftOf(*heading) : RightOf(*heading);
            TakeTurn(board, kind, mine, *heading, side);
        }
        if (board.TouchesYou(kind, mine)) return board.YouDie();
    }
}

} // namespace tumbledeep
