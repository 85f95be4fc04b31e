// The texts of maps for the benchmarks: maps made in memory by a rule, and those that ship. Boards
// are made of them by formats/LoadMap.h.
#pragma once

#include "world/Board.h"

#include <functional>
#include <string>

namespace tumbledeep {

/// What stands in a cell: a keyword and, for mines, a tag; "" for nothing.
struct Object {
    std::string Keyword;
    std::string Tag;
};

/// The text of a square map of `size` by `size` cells, closed by walls.
std::string MapOf(int size, const std::function<Object(int col, int row)>& inside);

/// A map of 90,000 lines of four kinds in turn, as no pool holds more than 32,767 sprites.
std::string MapOf90000Lines();

/// The text of a map that ships, by the name of its file. Throws Failure if there is none.
std::string ShippedMap(const std::string& file);

/// The names of the files of all maps that ship, sorted.
std::vector<std::string> ShippedMaps();

} // namespace tumbledeep
