// Turns the sprites of a map into the board that is played.
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
            // A tag that is no heading leaves the bare star.
            if (const auto heading = mines.HeadingOf(mine)) Turn(row.Which, mine, *heading);
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
    for (const int index : pool.InTurn()) Area.Set(CellOf(pool[index]), kind);
}

} // namespace tumbledeep
