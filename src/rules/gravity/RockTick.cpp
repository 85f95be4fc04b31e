// The gravity of rocks. There is no falling state: a rock falls when its turn finds the cell below
// empty, and only the turn in which it has fallen can hurt.
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// A rock that has just fallen onto a mine of that kind. A hidden mine left in that very cell
/// counts like a visible one, with a Bang for each; tests/films/GravityTest.cpp pins it.
void HitMine(Board& board, int rock, Kind kind) {
    Pool& rocks = board.Pools[Kind::RoundRock];
    Pool& mines = board.Pools[kind];
    const int count = mines.Count();
    const float left = rocks[rock].Left;
    const float top = rocks[rock].Top + Pitch;
    for (int i = mines.NextAt(0, left, top); i < count; i = mines.NextAt(i + 1, left, top)) {
        mines.Hide(i);
        rocks.Hide(rock);
        board.SpawnObject(Kind::Bang, mines[i].Left, mines[i].Top, Heading::Down);
        board.Area.Set(CellOf(rocks[rock]), Kind::Empty);
        board.Area.Set(CellOf(mines[i]), Kind::Bang);
    }
}

/// What a rock that has just fallen does to the cell now below it.
void Land(Board& board, int rock) {
    const Kind below = board.Area(CellOf(board.Pools[Kind::RoundRock][rock], Below));
    if (below == Kind::You) board.YouDie();
    if (IsMine(below)) HitMine(board, rock, below);
}

} // namespace

void Board::RockTick() {
    const RollSide side = DrawRollSide();
    const Pool& rocks = Pools[Kind::RoundRock];
    for (const int rock : rocks.InTurn()) {
        switch (Area(CellOf(rocks[rock], Below))) {
        case Kind::Empty:
            MoveSprite(Kind::RoundRock, rock, Below);
            Land(*this, rock);
            break;
        case Kind::Gem1Type:
        case Kind::RoundRock: Roll(Kind::RoundRock, rock, side); break;
        default: break; // rests, on the player too
        }
        if (Result != Outcome::Running) return;
    }
}

} // namespace tumbledeep
