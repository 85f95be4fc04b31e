// Turns the sprites that the lines of a map have made into the board that is played: pictures of
// headings, number of gems, grid, player's cell. Reading the lines is formats/LoadMap.cpp's, and
// which kinds are written into the grid in which order is told in world/Kind.cpp.
#include "world/Board.h"

#include <algorithm>

namespace tumbledeep {

void Board::YouStart() {
    Area.Set(CellOf(You), Kind::You);
    YouCol = GridPlace(You.Left);
    YouRow = RoundToEven(GridPlace(You.Top));
}

void Board::ResetArea() {
    for (const KindRow& row : PoolKinds()) {
        if (row.UpPic == Picture::None) continue;
        Pool& mines = Pools[row.Which];
        for (const int mine : mines.InTurn()) {
            // A tag that is no heading leaves the star without one.
            if (const auto heading = mines.HeadingOf(mine)) mines.Turn(mine, *heading);
        }
    }
    GemTotal = To16(Pools[Kind::Gem1Type].Count());
}

void Board::ResetStart(std::uint32_t seed) {
    MoveReady = true;
    YouDead = false;
    random.Seed(seed);
    Area = AreaGrid();
    std::array<const KindRow*, PoolCount> order{};
    std::ranges::transform(PoolKinds(), order.begin(), [](const KindRow& row) { return &row; });
    std::ranges::sort(order, {}, &KindRow::Stamped);
    for (const KindRow* const row : order) {
        if (row->Stamped > 0) Stamp(row->Which);
    }
    YouStart();
}

void Board::Stamp(Kind kind) {
    const Pool& pool = Pools[kind];
    for (const int index : pool.InTurn()) Area.Set(pool.CellOf(index), kind);
}

} // namespace tumbledeep
