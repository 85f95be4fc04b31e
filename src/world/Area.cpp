// The memory of the grid. It grows by strips, since a map may be written in any order, so two grids
// of equal cells can be of unequal size; they compare by their cells.
#include "world/Area.h"

#include <algorithm>

namespace tumbledeep {

void AreaGrid::Grow(Cell cell) {
    constexpr unsigned strip = 16;
    const auto fit = [](unsigned now, int index) {
        const unsigned needed = (static_cast<unsigned>(index) / strip + 1) * strip;
        return std::max(now, std::min(needed, unsigned{Size}));
    };
    const unsigned newCols = fit(cols, cell.Col);
    const unsigned newRows = fit(rows, cell.Row);
    std::vector<Kind> grown(std::size_t{newCols} * newRows, Kind::Empty);
    for (std::size_t row = 0; row < rows; ++row) {
        std::copy_n(cells.data() + row * cols, cols, grown.data() + row * newCols);
    }
    cells = std::move(grown);
    cols = newCols;
    rows = newRows;
}

bool operator==(const AreaGrid& a, const AreaGrid& b) {
    if (a.cols == b.cols && a.rows == b.rows) return a.cells == b.cells;
    const int cols = std::max(a.UsedCols(), b.UsedCols());
    const int rows = std::max(a.UsedRows(), b.UsedRows());
    for (int row = 0; row < rows; ++row) {
        for (int col = 0; col < cols; ++col) {
            if (a(col, row) != b(col, row)) return false;
        }
    }
    return true;
}

} // namespace tumbledeep
