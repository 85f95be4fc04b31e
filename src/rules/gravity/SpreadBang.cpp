// Dirt and rocks go, mines blow up in their turn, the player dies. Gems, walls, factories and other
// Bangs stay.
#include "rules/gravity/SpreadBang.h"

namespace tumbledeep {

namespace {

/// In the order in which the cells are taken: each sees what those before it have left.
constexpr std::array<Offset, 9> Block{
    Here,           Below,         Above, ToRight, ToLeft, ToRight + Below, ToRight + Above,
    ToLeft + Below, ToLeft + Above};

/// Takes the visible sprites of a kind that stand at a place in twips.
void BlowUp(Board& board, Kind kind, float left, float top) {
    Pool& pool = board.Pools[kind];
    const int count = pool.Count();
    for (int i = pool.NextAt(0, left, top); i < count; i = pool.NextAt(i + 1, left, top)) {
        if (!pool[i].Visible) continue;
        board.TakeAway(kind, i);
        if (!IsMine(kind)) continue;
        board.Area.Set(CellOf(pool[i]), Kind::Bang);
        board.SpawnObject(Kind::Bang, pool[i].Left, pool[i].Top, Heading::Down);
    }
}

} // namespace

void SpreadBang(Board& board, int bang) {
    // A copy: the pool of Bangs may grow while this one spreads.
    const Sprite centre = board.Pools[Kind::Bang][bang];
    for (const Offset offset : Block) {
        // `Area` alone decides which pool is looked at.
        const Kind kind = board.Area(CellOf(centre, offset));
        if (kind == Kind::You) return board.YouDie();
        if (!IsMine(kind) && kind != Kind::Dirt && kind != Kind::RoundRock) continue;
        BlowUp(board, kind, centre.Left + static_cast<float>(offset.Col) * Pitch,
               centre.Top + static_cast<float>(offset.Row) * Pitch);
    }
}

} // namespace tumbledeep
