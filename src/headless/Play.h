// A whole run of the game from a script.
#pragma once

#include "formats/Script.h"
#include "headless/ScriptedPlatform.h"

#include <ostream>

namespace tumbledeep {

struct PlayOptions {
    ScriptedRun Run;
    std::int64_t Steps = 1000;
    ScriptSize Parent{15360, 11520};
    bool Quiet = false;
};

/// Plays from the start of the process to its end or the last step, and writes the trace. Throws
/// ScriptFault when the script does not fit; what was written stays.
void Play(const PlayOptions& options, Script script, std::ostream& lines);

} // namespace tumbledeep
