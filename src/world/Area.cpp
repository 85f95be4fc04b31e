// The memory of the grid. It grows by whole rows, so two grids of equal cells can be of unequal
// size; they compare by their cells.
#include "world/Area.h"

#include <algorithm>
#include <cstring>

namespace tumbledeep {

void AreaGrid::GrowTo(int row) {
    for (int next = UsedRows(); next <= row; ++next) {
        cells.resize(cells.size() + Cell::RowLength, Kind::HardDirt);
        if (next < 0) continue;
        std::fill_n(cells.begin() + Cell(0, next).Number(), GridSize, Kind::Empty);
    }
}

bool operator==(const AreaGrid& a, const AreaGrid& b) {
    const AreaGrid& less = a.cells.size() < b.cells.size() ? a : b;
    const AreaGrid& more = &less == &a ? b : a;
    const bool sameKept = less.cells.empty() ||
                          std::memcmp(less.cells.data(), more.cells.data(), less.cells.size()) == 0;
    if (!sameKept) return false;
    for (int row = std::max(0, less.UsedRows()); row < more.UsedRows(); ++row) {
        for (int col = 0; col < GridSize; ++col) {
            if (more(col, row) != Kind::Empty) return false;
        }
    }
    return true;
}

} // namespace tumbledeep
