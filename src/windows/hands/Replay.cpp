// The steps of a script in the game's periods, and its answers behind the boxes that are shown.
#include "windows/hands/Replay.h"

#include "formats/Profile.h"
#include "formats/ProgramPath.h"
#include "windows/hands/ScriptEvents.h"

#include <algorithm>
#include <utility>

namespace tumbledeep {

namespace {

/// In ticks: what a last key sets off, a gem that falls, say, is still the script's.
constexpr std::int64_t Echo = 100;
/// No recording is longer than this; a script may say what it likes.
constexpr std::int64_t LastStop = std::int64_t{1} << 60;

} // namespace

Replay::Replay(Platform& system, Script lines, RecordingHead comments, std::string mapPath)
    : inner(system),
      script(std::move(lines)),
      head(std::move(comments)),
      map(std::move(mapPath)),
      // A key that is held at a recording's end has no event for that.
      overAt(std::max(script.Events.empty() ? 0 : script.Events.back().Step,
                      std::clamp<std::int64_t>(head.Stop.value_or(0), 0, LastStop)) +
             Echo) {}

std::string Replay::LastLine(const frmMain& game) const {
    return "stop " + std::to_string(step) + " tick " + std::to_string(game.ActiveChild.TickCount);
}

void Replay::Start(frmMain& game) {
    game.MDIForm_Activate();
    isStarted = true;
    if (mapHasChanged) {
        inner.MsgBox("The map has changed since this was recorded.", MsgBoxStyle::Ok);
    }
}

void Replay::Act(frmMain& game, const PlayerAct& act) {
    if (isOver || act.What == PlayerAct::Do::Resize) return game.Take(act);
    if (act.What == PlayerAct::Do::Type && act.Text == "p") waits = !waits;
}

void Replay::Period(frmMain& game) {
    if (waits) return;
    ++step;
    if (!isOver) {
        for (const ScriptEvent& event : script.Events) {
            if (event.Step != step) break;
            Show(event.Act);
        }
        TakeEvents(game, script, step);
        isOver = step >= overAt;
        if (isOver) game.ActiveChild.ArrowKeys = {};
    }
    game.TimerPeriod();
}

void Replay::Show(const PlayerAct& act) {
    using Do = PlayerAct::Do;
    constexpr std::string_view arrows = "^v<>";
    if (act.What == Do::Type) keys += act.Text;
    if (act.What == Do::Press) keys += arrows[Index(act.Key)];
    if (act.What == Do::Click) keys += '!';
    constexpr std::size_t shown = 12;
    keys.erase(0, keys.size() - std::min(keys.size(), shown));
}

std::string Replay::Note() const {
    if (isOver) return "The replay is over, the keys are yours";
    std::string spaced = waits ? "Replay waits, p goes on:" : "Replay:";
    for (const char key : keys) spaced.append({' ', key});
    return spaced;
}

int Replay::MsgBox(const std::string& text, int style) {
    if (!MsgBoxStyle::Asks(style)) return inner.MsgBox(text, style);
    if (!ScriptAnswers()) return inner.MsgBox(text, style);
    const int answer = script.AnswerYes() ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
    // The question of the first start is nothing to look at.
    if (isStarted) inner.MsgBox(text, style);
    return answer;
}

std::string Replay::InputBox(const std::string& prompt) {
    return ScriptAnswers() ? script.AnswerText() : inner.InputBox(prompt);
}

std::string Replay::ShowOpen(const OpenDialog& dialog) {
    if (!ScriptAnswers()) return inner.ShowOpen(dialog);
    const std::string path = script.AnswerFile();
    return path.empty() ? "" : PathFrom(AppPath(), path);
}

std::uint32_t Replay::Seed() { return head.Seed.value_or(1); }

std::string Replay::OpenForInput(const std::string& path) {
    std::string bytes = inner.OpenForInput(path);
    if (IsMapName(path)) mapHasChanged = head.Checksum && *head.Checksum != ChecksumOf(bytes);
    return bytes;
}

std::string Replay::GetPrivateProfileString(std::string_view section, std::string_view key,
                                            const std::string& /*path*/) {
    return ProfileValue(settings, section, key);
}

void Replay::WritePrivateProfileString(std::string_view section, std::string_view key,
                                       std::string_view value, const std::string& /*path*/) {
    settings = ProfileWith(settings, section, key, value);
}

} // namespace tumbledeep
