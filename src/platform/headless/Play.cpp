// The headless front end's loop: the script's events of a step, then one tick if the clock runs.
#include "platform/headless/Play.h"

#include "platform/headless/Trace.h"
#include "shell/frmMain.h"

namespace tumbledeep {

namespace {

void Deliver(const ScriptEvent& event, frmMain& game, ScriptedPlatform& platform) {
    using Do = ScriptEvent::Do;
    frmDocument& board = game.ActiveChild;
    switch (event.Kind) {
    case Do::Type:
        board.Input_Box.Text = event.Text;
        board.Input_Box_Change();
        break;
    case Do::Press: platform.SetKey(event.Key, true); break;
    case Do::Release: platform.SetKey(event.Key, false); break;
    case Do::Click: board.Form_MouseDown(1); break;
    case Do::Drag:
        board.Form.Left += event.X;
        board.Form.Top += event.Y;
        break;
    case Do::GotFocus: board.Form_GotFocus(); break;
    case Do::LostFocus: board.Form_LostFocus(); break;
    case Do::Menu: game.MenuClick(event.Text); break;
    case Do::Resize:
        game.Form.Width = event.X;
        game.Form.Height = event.Y;
        break;
    }
}

} // namespace

void Play(const PlayOptions& options, Script script, std::ostream& lines) {
    ScriptedPlatform platform(options.Run, script, lines);
    frmMain game(platform);
    game.Form.Width = options.Parent.Width;
    game.Form.Height = options.Parent.Height;
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
                Deliver(event, game, platform);
            }
            if (game.ActiveChild.Interval100Timer.Enabled) {
                game.ActiveChild.Interval100Timer_Timer();
            }
            if (!options.Quiet) trace.Print(game, step);
        }
    } catch (const ProgramEnd&) {
        // The run is over; its last line follows in any case.
    }
    lines << "stop " << step << " tick " << game.ActiveChild.TickCount << '\n';
}

} // namespace tumbledeep
