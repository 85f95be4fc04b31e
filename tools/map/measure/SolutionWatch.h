// A look at a solution while it is played: how long it waits, what it has to do with, how long its
// ticks take.
#pragma once

#include "formats/Script.h"
#include "map/bots/Walkers.h"

namespace tumbledeep {

struct SolutionStudy {
    RunEnd End;
    int Keys = 0;
    double WaitingShare = 0;
    double LongestWait = 0;
    double UsedShare = 0;
    double WorstTick = 0;
};

/// Plays a script from a start, and watches.
SolutionStudy Watch(const Board& start, const Script& script);

} // namespace tumbledeep
