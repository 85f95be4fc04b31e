// Walls come from the board's grid, and lose those cells that something else stands on unmarked.
#include "map/check/Ground.h"

namespace tumbledeep {

PerCell<char> Walls(const CheckedMap& map) {
    PerCell<char> walls(1);
    for (int row = 0; row < GridSize; ++row) {
        for (int col = 0; col < GridSize; ++col) {
            walls[{col, row}] = map.Start.Area(col, row) == Kind::HardDirt ? 1 : 0;
        }
    }
    for (const MapObject& object : map.Objects) {
        const Cell cell = object.At();
        if (object.Which != Kind::HardDirt && cell.InGrid()) walls[cell] = 0;
    }
    return walls;
}

PerCell<char> Flood(const PerCell<char>& walls, std::vector<Cell> from) {
    PerCell<char> reached(0);
    while (!from.empty()) {
        const Cell cell = from.back();
        from.pop_back();
        if (!cell.InGrid() || walls[cell] != 0 || reached[cell] != 0) continue;
        reached[cell] = 1;
        for (const Heading way : Headings) from.push_back(cell + Ahead(way));
    }
    return reached;
}

} // namespace tumbledeep
