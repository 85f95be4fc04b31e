// The loop of a run: the script's events of a step, then a period of the timer, then the lines that
// tell what has changed.
#include "headless/Play.h"

#include "headless/Trace.h"
#include "windows/hands/ScriptEvents.h"

namespace tumbledeep {

namespace {

/// The rest of a step behind the script's events. A tick that ends the process counts too.
void Period(frmMain& game, std::int64_t step, Timing* timing) {
    if (timing == nullptr || !game.ActiveChild.Interval100Timer.Enabled) return game.TimerPeriod();
    timing->TickBegins();
    try {
        game.TimerPeriod();
    } catch (const ProgramEnd&) {
        timing->TickEnds(step);
        throw;
    }
    timing->TickEnds(step);
}

} // namespace

void Play(const PlayOptions& options, Script script, std::ostream& lines, Timing* timing) {
    ScriptedPlatform platform(options.Run, script, lines);
    frmMain game(platform);
    game.Take(
        {.What = PlayerAct::Do::Resize, .X = options.Parent.Width, .Y = options.Parent.Height});
    Trace trace(lines, [&platform](std::string_view text) { return platform.Quoted(text); });

    std::int64_t step = 0;
    try {
        game.MDIForm_Activate();
        if (timing != nullptr) timing->LoadEnds();
        if (!options.Quiet) trace.Print(game, step);
        while (step < options.Steps) {
            ++step;
            TakeEvents(game, script, step);
            Period(game, step, timing);
            if (!options.Quiet) trace.Print(game, step);
        }
    } catch (const ProgramEnd&) {
        // The run is over; its last line follows in any case.
    }
    lines << "stop " << step << " tick " << game.ActiveChild.TickCount << '\n';
}

} // namespace tumbledeep
