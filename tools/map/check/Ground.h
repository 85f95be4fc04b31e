// What of a map stands for good: the walls that nothing can open. A map's start goes in; floods and
// the search for gems ask it.
#pragma once

#include "map/check/CheckedMap.h"

#include <vector>

namespace tumbledeep {

/// A value for each cell of the grid and each one beside it.
template <class Value> class PerCell {
  public:
    explicit PerCell(Value value)
        : values(static_cast<std::size_t>(Cell::RowLength) * (GridSize + 2 * Cell::Margin + 1),
                 value) {}
    /// The cell lies in the grid or at most Cell::Margin beside it.
    Value& operator[](Cell cell) { return values[cell.Number()]; }
    const Value& operator[](Cell cell) const { return values[cell.Number()]; }

  private:
    std::vector<Value> values;
};

/// True for the cells where nothing can ever go: those outside the grid, and walls on whose cell
/// there is nothing else. A gem in a wall's cell comes into sight with the next key, and opens it.
PerCell<char> Walls(const CheckedMap& map);

/// All cells to which a way without walls leads from some cells, themselves included.
PerCell<char> Flood(const PerCell<char>& walls, std::vector<Cell> from);

} // namespace tumbledeep
