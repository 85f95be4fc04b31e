// Any bytes as a script: what is read is written and read again, then played by the trace in an
// empty folder with one small map, and by a replay in memory.
#include "Sandbox.h"
#include "Target.h"

#include "headless/Play.h"
#include "host/HostPaths.h"
#include "host/MemoryPlatform.h"
#include "windows/hands/Replay.h"

#include <algorithm>
#include <sstream>

namespace tumbledeep {

namespace {

constexpr const char* Map =
    "title A map\nyou 0 0\ngem1type 0 360\nroundrock 0 720\nharddirt 0 3600\n"
    "movingmineL 1080 720 U\ngem1type 3600 3600\ndirt 1440 0\n";
constexpr int Steps = 30;

/// The lines by which a script is written.
std::string TextOf(const Script& script) {
    std::string text;
    for (const ScriptAnswer& answer : script.Answers) text += LineOf(answer);
    for (const ScriptEvent& event : script.Events) text += LineOf(event);
    return text;
}

void InTheTrace(const Script& script) {
    static const Sandbox sandbox;
    sandbox.Clear();
    sandbox.Write("m.TBM", Map);
    PlayOptions options;
    options.Run = {ProgramPath(sandbox.Path), "m.TBM", 1};
    options.Steps = Steps;
    std::ostringstream lines;
    Timing timing;
    try {
        Play(options, script, lines, &timing);
        Hold(lines.str().find("stop ") != std::string::npos, "a trace has a last line");
    } catch (const ScriptFault&) {
        // An answer does not fit its dialog.
    }
    lines << timing.Line(Steps);
}

void InAReplay(const Script& script, std::string_view text) {
    MemoryPlatform system;
    system.Files["Z:\\game\\m.TBM"] = Map;
    Replay replay(system, script, ReadRecordingHead(text), "m.TBM");
    frmMain game(replay);
    try {
        replay.Start(game);
        for (int step = 0; step < Steps; ++step) {
            if (step == Steps / 2) replay.Act(game, {PlayerAct::Do::Type, "p"});
            replay.Period(game);
            Hold(!replay.Note().empty(), "a replay is told of");
        }
    } catch (const ProgramEnd&) {
    } catch (const ScriptFault&) {
    }
}

} // namespace

void Fuzz(std::string_view bytes) {
    Script script;
    try {
        script = ReadScript("s", bytes, &IsMenuHandler);
    } catch (const ScriptFault&) {
        return;
    }
    const std::string text = TextOf(script);
    Hold(TextOf(ReadScript("written", text, &IsMenuHandler)) == text,
         "a script that is written reads as the same");
    InAReplay(script, bytes);
    const bool stays = std::ranges::all_of(script.Answers, [](const ScriptAnswer& answer) {
        return answer.What != ScriptAnswer::To::File || StaysInside(answer.Text);
    });
    if (stays) InTheTrace(script);
}

} // namespace tumbledeep
