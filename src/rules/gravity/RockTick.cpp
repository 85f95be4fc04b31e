// One turn for each rock: it falls a cell, rolls to a side, or rests. No state tells a falling rock
// from a resting one: a rock falls when the cell below it is empty, and only in the turn in which
// it has fallen can it kill or hit a mine. Pushing rocks is player/Push.cpp's.
#include "rules/gravity/Restless.h"

namespace tumbledeep {

namespace {

/// A rock that has just fallen, with a mine of that kind in the cell below: both go, and a Bang
/// comes in the mine's place. A hidden mine left in that cell counts like a visible one and gets a
/// Bang of its own; tests/films/GravityTest.cpp pins it.
void HitMine(Board& board, int rock, Kind kind) {
    Pool& rocks = board.Pools[Kind::RoundRock];
    Pool& mines = board.Pools[kind];
    const float left = rocks[rock].Left;
    const float top = rocks[rock].Top + Pitch;
    // Without a Bang to be had, a hit on a hidden mine empties the rock's cell and marks the
    // mine's, that is all. However many there are, each of their cells ends up marked, but the
    // rock's own as the last hit leaves it.
    const bool spent = board.Pools[Kind::Bang].Spent();
    for (const int mine : spent ? mines.FewAt(left, top) : mines.AllAt(left, top)) {
        mines.Hide(mine);
        rocks.Hide(rock);
        board.SpawnObject(Kind::Bang, mines[mine].Left, mines[mine].Top, Heading::Down);
        board.Area.Set(rocks.CellOf(rock), Kind::Empty);
        board.Area.Set(mines.CellOf(mine), Kind::Bang);
    }
}

/// What a rock that has just fallen does to what is now below it.
void Land(Board& board, int rock) {
    const Kind below = board.Area(board.Pools[Kind::RoundRock].CellOf(rock, Below));
    if (below == Kind::You) board.YouDie();
    if (IsMine(below)) HitMine(board, rock, below);
}

} // namespace

void Board::RockTick() {
    const RollSide side = DrawRollSide();
    const Pool& rocks = Pools[Kind::RoundRock];
    for (const int rock : Restless(*this, Kind::RoundRock, side)) {
        switch (Area(rocks.CellOf(rock, Below))) {
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
