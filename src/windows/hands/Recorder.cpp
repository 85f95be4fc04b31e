// What of a run becomes a line. A step of the script is a tick of the run: while the clock stands
// no step goes by, so a pause leaves its keys and no time.
#include "windows/hands/Recorder.h"

#include "base/Text.h"
#include "formats/ProgramPath.h"

#include <algorithm>
#include <utility>

namespace tumbledeep {

using To = ScriptAnswer::To;

Recorder::Recorder(Platform& system, std::function<void(const std::string&)> lines)
    : inner(system), write(std::move(lines)) {}

void Recorder::Watch(const frmMain& game, std::int64_t step,
                     const std::function<void()>& something) {
    try {
        something();
    } catch (const ProgramEnd&) {
        write("# stop " + std::to_string(step) + " tick " +
              std::to_string(game.ActiveChild.TickCount) + '\n');
        hasEnded = true;
        throw;
    }
}

void Recorder::Start(frmMain& game) {
    Watch(game, 0, [&game] { game.MDIForm_Activate(); });
    WriteHead(game);
    isStarted = true;
    // Who has gone to another program during the start-up finds the clock standing.
    if (!game.ActiveChild.Interval100Timer.Enabled) {
        write(LineOf(ScriptEvent{1, {PlayerAct::Do::LostFocus}, 0}));
    }
}

void Recorder::WriteHead(const frmMain& game) {
    write("# recorded by tumbledeep; to see it: tumbledeep --replay FILE\n" + LinesOf(head));
    if (!viewIsChosen) return;
    const frmDocument& board = game.ActiveChild;
    NoteAnswer({board.AutoMoveOn ? To::Yes : To::No, "", 0});
    if (!board.AutoMoveOn) return;
    const int mode = static_cast<int>(board.AutoMoveMode);
    NoteAnswer({To::Text, std::to_string(std::clamp(mode, 1, 3)), 0});
}

void Recorder::Act(frmMain& game, const PlayerAct& act) {
    // The window's size is the window's own.
    if (isStarted && act.What != PlayerAct::Do::Resize) {
        write(LineOf(ScriptEvent{ticks + 1, act, 0}));
    }
    Watch(game, isStarted ? ticks + 1 : 0, [&] { game.Take(act); });
}

void Recorder::Period(frmMain& game) {
    if (game.ActiveChild.Interval100Timer.Enabled) ++ticks;
    Watch(game, ticks, [&game] { game.TimerPeriod(); });
}

void Recorder::Finish(const frmMain& game) {
    if (hasEnded) return;
    hasEnded = true;
    write("# stop " + std::to_string(ticks) + " tick " +
          std::to_string(game.ActiveChild.TickCount) + '\n');
}

void Recorder::NoteAnswer(const ScriptAnswer& answer) { write(LineOf(answer)); }

int Recorder::MsgBox(const std::string& text, int style) {
    const int answer = inner.MsgBox(text, style);
    if (isStarted && MsgBoxStyle::Asks(style)) {
        NoteAnswer({answer == MsgBoxAnswer::Yes ? To::Yes : To::No, "", 0});
    }
    return answer;
}

std::string Recorder::InputBox(const std::string& prompt) {
    std::string text = inner.InputBox(prompt);
    if (isStarted) NoteAnswer({text.empty() ? To::Cancel : To::Text, text, 0});
    return text;
}

std::string Recorder::ShowOpen(const OpenDialog& dialog) {
    std::string path = inner.ShowOpen(dialog);
    if (isStarted) NoteAnswer({path.empty() ? To::Cancel : To::File, path, 0});
    return path;
}

std::uint32_t Recorder::Seed() {
    if (!head.Seed) head.Seed = inner.Seed();
    return *head.Seed;
}

std::string Recorder::OpenForInput(const std::string& path) {
    std::string bytes = inner.OpenForInput(path);
    if (IsMapName(path)) {
        head.Map = getfilename(path);
        head.Checksum = ChecksumOf(bytes);
    }
    return bytes;
}

std::string Recorder::GetPrivateProfileString(std::string_view section, std::string_view key,
                                              const std::string& path) {
    // A start-up that a faulty map cuts short does not come to the view; nor does its replay.
    if (SameButCase(section, "AutoMove")) viewIsChosen = true;
    return inner.GetPrivateProfileString(section, key, path);
}

void Recorder::WritePrivateProfileString(std::string_view section, std::string_view key,
                                         std::string_view value, const std::string& path) {
    inner.WritePrivateProfileString(section, key, value, path);
}

} // namespace tumbledeep
