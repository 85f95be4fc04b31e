// The grid: 301 by 301 cells, columns and rows from 0 to 300, each holding a kind. Only the part
// that has ever held something takes memory, so that a small map's grid copies in no time. Where a
// sprite stands in twips, and which cell that is, is told in Pool.h and Cell.h.
#pragma once

#include "world/Cell.h"
#include "world/Kind.h"

#include <vector>

namespace tumbledeep {

class AreaGrid {
  public:
    static constexpr int Size = 301; ///< columns, and rows

    /// What a cell holds. One outside the grid reads as a wall.
    Kind operator()(int col, int row) const {
        if (IsKept(col, row)) {
            return cells[Place(col, row)];
        }
        return InGrid(col, row) ? Kind::Empty : Kind::HardDirt;
    }
    Kind operator()(Cell cell) const { return (*this)(cell.Col, cell.Row); }

    /// Writes a cell. What is written outside the grid is dropped.
    void Set(Cell cell, Kind kind) {
        if (!InGrid(cell.Col, cell.Row)) return;
        if (!IsKept(cell.Col, cell.Row)) {
            if (kind == Kind::Empty) return;
            Grow(cell);
        }
        cells[Place(cell.Col, cell.Row)] = kind;
    }

    /// Cells in columns from UsedCols() on, and in rows from UsedRows() on, have never held
    /// anything. Both only grow.
    int UsedCols() const { return static_cast<int>(cols); }
    int UsedRows() const { return static_cast<int>(rows); }

    /// Whether all cells hold the same, however much of the two grids is kept.
    friend bool operator==(const AreaGrid& a, const AreaGrid& b);

  private:
    static constexpr bool InGrid(int col, int row) {
        return static_cast<unsigned>(col) < Size && static_cast<unsigned>(row) < Size;
    }
    bool IsKept(int col, int row) const {
        return static_cast<unsigned>(col) < cols && static_cast<unsigned>(row) < rows;
    }
    std::size_t Place(int col, int row) const {
        return static_cast<std::size_t>(col) + static_cast<std::size_t>(row) * cols;
    }
    /// Makes room for a cell that lies in the grid.
    void Grow(Cell cell);

    unsigned cols = 0;
    unsigned rows = 0;
    std::vector<Kind> cells; ///< columns vary fastest
};

} // namespace tumbledeep
