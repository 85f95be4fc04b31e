// What a script does in one step.
#pragma once

#include "formats/Script.h"
#include "windows/frmMain.h"

namespace tumbledeep {

/// Takes the events of a step off the script and hands them to the game, one after the other.
inline void TakeEvents(frmMain& game, Script& script, std::int64_t step) {
    while (!script.Events.empty() && script.Events.front().Step == step) {
        const ScriptEvent event = std::move(script.Events.front());
        script.Events.pop_front();
        game.Take(event.Act);
    }
}

} // namespace tumbledeep
