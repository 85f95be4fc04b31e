// What can be told of a map in figures: a map's lines go in, sizes, counts and times come out. They
// are written as a text by Info.cpp and as JSON by InfoJson.cpp.
#pragma once

#include "headless/Timing.h"
#include "map/MapSource.h"
#include "rules/mines/Recipe.h"
#include "world/Board.h"

#include <array>

namespace tumbledeep {

struct FactoryInfo {
    int Column; ///< from 1, as is `Row`
    int Row;
    std::string Tag;          ///< the recipe as it is written
    std::optional<Kind> Made; ///< none if the factory makes nothing
    int Every = 0;            ///< milliseconds from one to the next while the cell is free
};

struct MapInfo {
    std::string Name; ///< of the file
    int Columns = 0;  ///< of the board's window, begun cells too, as are `Rows`
    int Rows = 0;
    std::array<int, KindCount> Counts{}; ///< objects by kind; the player's lines under Kind::You
    std::vector<std::string> Titles;
    std::vector<FactoryInfo> Factories;
    Timing Times;                   ///< of the load and of the first minute's ticks
    Outcome End = Outcome::Running; ///< of the first minute, with no key touched
    int Ticks = 0;                  ///< that ran in it

    int CountOf(Kind kind) const { return Counts.at(static_cast<std::size_t>(kind)); }
};

/// Ticks of the first minute.
inline constexpr int MinuteTicks = 6000;

/// Reads a map or a text picture and plays its first minute. Throws std::runtime_error with a text
/// that names file and line.
MapInfo StudyMap(const std::string& name);

/// The info as one JSON object with a line end. Its fields are told in InfoJson.cpp.
std::string JsonOf(const MapInfo& info);

} // namespace tumbledeep
