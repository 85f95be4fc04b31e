// The grid: 301 by 301 cells, columns and rows from 0 to 300.
#pragma once

#include "board/Cell.h"
#include "board/Kind.h"

#include <array>
#include <cstddef>

namespace tumbledeep {

class AreaGrid {
  public:
    static constexpr int Size = 301;

    /// The cell, to read or to write. A cell outside reads as a wall and drops what is written.
    Kind& operator()(int col, int row) {
        if (col < 0 || col >= Size || row < 0 || row >= Size) {
            outside = Kind::HardDirt;
            return outside;
        }
        return cells[static_cast<std::size_t>(col) + static_cast<std::size_t>(row) * Size];
    }
    Kind& operator()(Cell cell) { return (*this)(cell.Col, cell.Row); }

    /// All cells, columns varying fastest.
    const std::array<Kind, std::size_t{Size} * Size>& Cells() const { return cells; }

  private:
    std::array<Kind, std::size_t{Size} * Size> cells{};
    Kind outside = Kind::HardDirt;
};

} // namespace tumbledeep
