// A blast goes over its nine cells in a fixed order. Dirt and rocks go, mines become Bangs, the
// player dies; gems, walls, factories and other Bangs stay.
#include "rules/gravity/SpreadBang.h"

namespace tumbledeep {

namespace {

/// The order in which the cells are taken, each as those before it have left it: it decides which
/// mine gets which Bang of the pool, and what is gone when the player dies.
/// tests/films/BlastTest.cpp pins it.
constexpr std::array<Offset, 9> Block{
    Here,           Below,         Above, ToRight, ToLeft, ToRight + Below, ToRight + Above,
    ToLeft + Below, ToLeft + Above};

/// Takes away the visible sprites of a kind at a place in twips, and makes a Bang of each mine.
void BlowUp(Board& board, Kind kind, float left, float top) {
    Pool& pool = board.Pools[kind];
    for (const int i : pool.VisibleAt(left, top)) {
        pool.Hide(i);
        board.Area.Set(pool.CellOf(i), IsMine(kind) ? Kind::Bang : Kind::Empty);
        if (!IsMine(kind)) continue;
        board.SpawnObject(Kind::Bang, pool[i].Left, pool[i].Top, Heading::Down);
    }
}

} // namespace

void SpreadBang(Board& board, int bang) {
    const Pool& bangs = board.Pools[Kind::Bang];
    for (const Offset offset : Block) {
        // The grid alone tells what is there: a sprite under another kind's mark is spared.
        const Kind kind = board.Area(bangs.CellOf(bang, offset));
        if (kind == Kind::You) return board.YouDie();
        if (!IsMine(kind) && kind != Kind::Dirt && kind != Kind::RoundRock) continue;
        // No reference: the pool of Bangs may grow while this one spreads.
        BlowUp(board, kind, bangs[bang].Left + static_cast<float>(offset.Col) * Pitch,
               bangs[bang].Top + static_cast<float>(offset.Row) * Pitch);
    }
}

} // namespace tumbledeep
