// A whole run of the game from a script, as tumbledeep-trace plays it: options and script go in,
// the lines of the trace come out. The command line is main.cpp's; the lines are Trace.h's and, for
// what the game asks of its system, ScriptedPlatform.h's.
#pragma once

#include "formats/Script.h"
#include "headless/ScriptedPlatform.h"
#include "headless/Timing.h"

#include <ostream>

namespace tumbledeep {

/// How a run is played.
struct PlayOptions {
    ScriptedRun Run;
    std::int64_t Steps = 1000;       ///< periods of the timer after the start-up
    ScriptSize Parent{15360, 11520}; ///< outer size of the parent window, in twips
    bool Quiet = false;              ///< no lines that tell the state, only what happens
};

/// Plays from the start of the process to its end or the last step, and writes the trace. Throws
/// ScriptFault when an answer does not fit its dialog; what was written stays. `timing`, made just
/// before the call, takes the times if there is one.
void Play(const PlayOptions& options, Script script, std::ostream& lines, Timing* timing = nullptr);

} // namespace tumbledeep
