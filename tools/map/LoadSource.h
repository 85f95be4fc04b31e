// From a map as its author keeps it to the board that is played. Reading the file is MapSource.h's.
#pragma once

#include "map/MapSource.h"
#include "world/Board.h"

#include <cstdint>

namespace tumbledeep {

/// The board at the map's start. Throws std::runtime_error for the first line at which the game
/// stops reading: "x.TBM:3: "36o" is no number (failure 13)".
Board LoadSource(const MapSource& source, std::uint32_t seed);

} // namespace tumbledeep
