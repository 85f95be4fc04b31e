// The grid: 301 by 301 cells, columns and rows from 0 to 300, each holding a kind. Only the rows
// down to the last that has ever held something take memory, so that a small map's grid copies in
// no time. Where a sprite stands in twips, and which cell that is, is told in Pool.h and Cell.h.
#pragma once

#include "world/Cell.h"
#include "world/Kind.h"

#include <span>
#include <vector>

namespace tumbledeep {

class AreaGrid {
  public:
    /// What a cell holds. One outside the grid reads as a wall.
    Kind operator()(Cell cell) const {
        if (cell.Number() < cells.size()) return cells[cell.Number()];
        return cell.InGrid() ? Kind::Empty : Kind::HardDirt;
    }
    Kind operator()(int col, int row) const { return (*this)(Cell(col, row)); }

    /// Whether the cell above, below, left or right of a cell holds a kind.
    bool HasBeside(Cell cell, Kind kind) const {
        const std::size_t number = cell.Number();
        constexpr std::size_t row = Cell::RowLength;
        if (number >= row && number + row < cells.size()) [[likely]] {
            const Kind* const here = &cells[number];
            return here[-Cell::RowLength] == kind || here[Cell::RowLength] == kind ||
                   here[-1] == kind || here[1] == kind;
        }
        return (*this)(cell + Above) == kind || (*this)(cell + Below) == kind ||
               (*this)(cell + ToLeft) == kind || (*this)(cell + ToRight) == kind;
    }

    /// Writes a cell. What is written outside the grid is dropped.
    void Set(Cell cell, Kind kind) {
        if (!cell.InGrid()) return;
        if (cell.Number() >= cells.size()) {
            if (kind == Kind::Empty) return;
            GrowTo(cell.Row());
        }
        cells[cell.Number()] = kind;
    }

    /// Cells in rows from here on have never held anything. It only grows.
    int UsedRows() const { return Cell::Numbered(static_cast<unsigned>(cells.size())).Row(); }

    /// The cells that take memory, by their numbers.
    std::span<const Kind> Kept() const { return cells; }

    /// Whether all cells hold the same, however much of the two grids is kept.
    friend bool operator==(const AreaGrid& a, const AreaGrid& b);

  private:
    void GrowTo(int row);

    std::vector<Kind> cells; ///< by the number of the cell, the walls beside the grid included
};

} // namespace tumbledeep
