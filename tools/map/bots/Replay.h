// A script's keys played on a board alone, without the program round it: a proof that a map can be
// won costs milliseconds so. tumbledeep-trace plays the same script in the whole program.
#pragma once

#include "formats/Script.h"
#include "map/bots/Walkers.h"

#include <functional>
#include <string>

namespace tumbledeep {

/// The most ticks by which a key of a hand that is not quite in time comes late.
inline constexpr int LatestTicks = 10;

/// Reads a script's file. Throws std::runtime_error with a line that names it and the fault.
Script ScriptFrom(const std::string& file);

/// A copy whose every act comes later by up to `LatestTicks`, drawn from the seed; their order
/// stays.
Script Late(Script script, std::uint32_t seed);

/// The step of the last act, 0 without any.
std::int64_t LastStep(const Script& script);
/// How many ticks a plan waits that goes on from a script: until its last act has come, however
/// late; from a start, long enough for whoever watches to see the map.
std::int64_t RestBeforePlan(const Script& before);

/// Plays what a script types, holds and pauses, and `rest` more ticks, fewer if the map ends. What
/// only concerns the window is passed over. `seen`, if given, looks at the board after each period.
RunEnd PlayScript(Board& board, const Script& script, std::int64_t rest,
                  const std::function<void(const Board& board)>& seen = {});

/// How many of the seeds from 1 to `seeds` a script wins with; with `late`, its acts are late as by
/// Late with the same seed.
int CountWins(const Board& start, const Script& script, int seeds, bool late);

} // namespace tumbledeep
