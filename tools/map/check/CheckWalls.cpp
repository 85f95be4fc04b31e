// Holes in the outer wall: ways that lead the player out of the rectangle in which all walls lie,
// and objects that stand outside. A corner that is missing is no hole.
#include "map/check/Checks.h"

#include "map/check/Ground.h"

#include <algorithm>

namespace tumbledeep {

namespace {

/// The rectangle of all walls, its edges included.
struct Box {
    int Left = GridSize;
    int Top = GridSize;
    int Right = -1;
    int Bottom = -1;

    void Add(Cell cell) {
        Left = std::min(Left, cell.Col());
        Right = std::max(Right, cell.Col());
        Top = std::min(Top, cell.Row());
        Bottom = std::max(Bottom, cell.Row());
    }
    bool Holds(Cell cell) const {
        return cell.Col() >= Left && cell.Col() <= Right && cell.Row() >= Top &&
               cell.Row() <= Bottom;
    }
};

template <class Do> void ForEachCell(Do&& act) {
    for (int row = 0; row < GridSize; ++row) {
        for (int col = 0; col < GridSize; ++col) act(Cell(col, row));
    }
}

Box BoxOf(const CheckedMap& map) {
    Box box;
    ForEachCell([&](Cell cell) {
        if (map.Start.Area(cell) == Kind::HardDirt) box.Add(cell);
    });
    return box;
}

std::vector<Cell> Outside(const Box& box) {
    std::vector<Cell> cells;
    ForEachCell([&](Cell cell) {
        if (!box.Holds(cell)) cells.push_back(cell);
    });
    return cells;
}

/// The first cell of the box, in reading order, from which the player can step out of it.
std::optional<Cell> FirstHole(const PerCell<char>& walls, const Box& box, Cell player) {
    PerCell<char> fenced = walls;
    for (const Cell cell : Outside(box)) fenced[cell] = 1;
    const PerCell<char> reached = Flood(fenced, {player});
    std::optional<Cell> hole;
    ForEachCell([&](Cell cell) {
        if (hole || reached[cell] == 0) return;
        const bool leads = std::ranges::any_of(Headings, [&](Heading way) {
            const Cell next = cell + Ahead(way);
            return next.InGrid() && !box.Holds(next);
        });
        if (leads) hole = cell;
    });
    return hole;
}

Finding HoleFinding(const CheckedMap& map, Cell hole, int playerLine) {
    const MapSource& source = map.Source;
    const int line = source.IsPicture ? source.FirstRow + hole.Row() - 1 : playerLine;
    const bool isOpened = map.Start.Area(hole) == Kind::HardDirt;
    return Error(
        line,
        {"the outer wall has a hole in ", PlaceText(hole), ", through which the player can leave"},
        {isOpened           ? "take away what stands on the wall there"
         : source.IsPicture ? "draw a # there"
                            : "put a harddirt there"});
}

/// One finding for all objects but walls and dirt that lie where the player can't get out.
void CheckOutside(Findings& found, const CheckedMap& map, const PerCell<char>& open) {
    const MapObject* first = nullptr;
    int count = 0;
    for (const MapObject& object : map.Objects) {
        const bool harmless = object.Which == Kind::HardDirt || object.Which == Kind::Dirt;
        if (harmless || !object.At().InGrid() || open[object.At()] == 0) continue;
        if (first == nullptr) first = &object;
        ++count;
    }
    if (first == nullptr) return;
    const std::string who =
        count == 1 ? Joined({"the ", KindText(first->Which), " stands"})
                   : Joined({std::to_string(count), " objects, from this one on, stand"});
    found.push_back(Warning(first->Line, {who, " outside the walls"},
                            {"close the walls round ", PlaceText(first->At())}));
}

} // namespace

Findings CheckWalls(const CheckedMap& map) {
    const auto player = std::ranges::find(map.Objects, Kind::You, &MapObject::Which);
    if (player == map.Objects.end() || !player->At().InGrid()) return {};
    const Box box = BoxOf(map);
    if (!box.Holds(player->At())) {
        return {Error(player->Line, {"the player stands outside the walls"},
                      {"close the map with walls all round"})};
    }
    const PerCell<char> walls = Walls(map);
    if (const auto hole = FirstHole(walls, box, player->At())) {
        return {HoleFinding(map, *hole, player->Line)};
    }
    Findings found;
    CheckOutside(found, map, Flood(walls, Outside(box)));
    return found;
}

} // namespace tumbledeep
