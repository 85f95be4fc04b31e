// The loop of a run: the script's events of a step, then a period of the timer, then the lines that
// tell what has changed.
#include "headless/Play.h"

#include "headless/Trace.h"
#include "windows/frmMain.h"

namespace tumbledeep {

void Play(const PlayOptions& options, Script script, std::ostream& lines) {
    ScriptedPlatform platform(options.Run, script, lines);
    frmMain game(platform);
    game.Take(
        {.What = PlayerAct::Do::Resize, .X = options.Parent.Width, .Y = options.Parent.Height});
    Trace trace(lines, [&platform](std::string_view text) { return platform.Quoted(text); });

    std::int64_t step = 0;
    try {
        game.MDIForm_Activate();
        if (!options.Quiet) trace.Print(game, step);
        while (step < options.Steps) {
            ++step;
            while (!script.Events.empty() && script.Events.front().Step == step) {
                const ScriptEvent event = script.Events.front();
                script.Events.pop_front();
                game.Take(event.Act);
            }
            game.TimerPeriod();
            if (!options.Quiet) trace.Print(game, step);
        }
    } catch (const ProgramEnd&) {
        // The run is over; its last line follows in any case.
    }
    lines << "stop " << step << " tick " << game.ActiveChild.TickCount << '\n';
}

} // namespace tumbledeep
