// A look at a solution while it is played: how long it waits, what it has to do with, how long its
// ticks take.
#pragma once

#include "formats/Script.h"
#include "map/bots/Walkers.h"

namespace tumbledeep {

struct SolutionStudy {
    RunEnd End;
    int Keys = 0;            ///< steps and presses of arrows
    double Seconds = 0;      ///< until the map ends
    double WaitingShare = 0; ///< part of that time spent waiting
    double LongestWait = 0;  ///< in seconds
    double UsedShare = 0;    ///< part of the map's objects that the script has to do with
    double WorstTick = 0;    ///< in milliseconds
};

/// Plays a script from a start, and watches.
SolutionStudy Watch(const Board& start, const Script& script);

} // namespace tumbledeep
