// The texts of maps for the benchmarks: maps made in memory by a rule, and those that ship. Boards
// are made of them by formats/LoadMap.h.
#pragma once

#include "world/Board.h"

#include <functional>
#include <string>
#include <vector>

namespace tumbledeep {

/// A gem out of reach keeps a map from being won, and a player off the grid from being lost.
inline constexpr const char* Endless = "gem1type 0 0\nyou 1e9 1e9\n";

/// What stands in a cell: a keyword and, for mines, a tag; "" for nothing.
struct Object {
    std::string Keyword;
    std::string Tag;
};

/// The line of an object at a place in twips; "" for nothing.
std::string LineOf(const Object& object, float left, float top);

/// The text of a map of so many cells, closed by walls that count among them.
std::string MapOf(int width, int height, const std::function<Object(int col, int row)>& inside);

/// A map of 90,000 lines of four kinds in turn, as no pool holds more than 32,767 sprites.
std::string MapOf90000Lines();

/// The text of a map that ships, by the name of its file. Throws Failure if there is none.
std::string ShippedMap(const std::string& file);

/// The names of the files of all maps that ship, sorted.
std::vector<std::string> ShippedMaps();

} // namespace tumbledeep
