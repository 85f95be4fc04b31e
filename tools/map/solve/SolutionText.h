// A plan as a script that tumbledeep-trace and the game can play.
#pragma once

#include "formats/Script.h"
#include "map/MapSource.h"

#include <string>
#include <string_view>

namespace tumbledeep {

/// The acts of `before`, and behind them a key each `beat` ticks; a blank is a beat without one.
Script PlanOf(Script before, std::string_view keys, int beat);

/// The script's lines, with answers for a start without a settings file, and the map's name and
/// checksum in comments.
std::string SolutionText(const MapSource& map, const Script& plan);

} // namespace tumbledeep
