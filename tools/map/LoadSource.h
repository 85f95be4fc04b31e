// From a map as its author keeps it to the board that is played. Reading the file is MapSource.h's.
#pragma once

#include "map/MapSource.h"
#include "world/Board.h"

namespace tumbledeep {

/// The board at the map's start, with the same random numbers each time. Throws std::runtime_error
/// for the first line at which the game stops reading: "x.TBM:3: "36o" is no number (failure 13)".
Board LoadSource(const MapSource& source);

} // namespace tumbledeep
