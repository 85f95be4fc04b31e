// Plays a script in the player's place: its events come period by period, its answers to what the
// game asks. Settings are kept in memory, and no other process is started, so that whoever watches
// loses nothing. Behind the last event the keys are the player's.
#pragma once

#include "formats/RecordingHead.h"
#include "formats/Script.h"
#include "host/Platform.h"
#include "windows/hands/Hands.h"

#include <functional>

namespace tumbledeep {

class Replay final : public Hands, public Platform {
  public:
    /// Plays `script` on the map `map`, a path of the program. What is shown is shown by `system`,
    /// which must outlive it.
    Replay(Platform& system, Script script, RecordingHead head, std::string map);

    /// Nothing is left to be done, and what the last act has set off has had a second to come.
    bool IsOver() const { return isOver; }
    /// The map's bytes are not those that the script was recorded on.
    bool MapHasChanged() const { return mapHasChanged; }
    /// "stop N tick T", the last line of a trace that has come so far.
    std::string LastLine(const frmMain& game) const;

    void Start(frmMain& game) override;
    /// What the player does counts once the script is over; until then "p" alone, which makes the
    /// script wait and go on.
    void Act(frmMain& game, const PlayerAct& act) override;
    void Period(frmMain& game) override;
    bool NeedsPeriods() const override { return !isOver; }
    std::string Note() const override;

    int MsgBox(const std::string& text, int style) override;
    std::string InputBox(const std::string& prompt) override;
    std::string ShowOpen(const OpenDialog& dialog) override;
    void DragBoard() override { inner.DragBoard(); }
    void Shell(const std::string& /*commandLine*/) override {}
    std::string AppPath() const override { return inner.AppPath(); }
    std::string Command() const override { return map; }
    std::uint32_t Seed() override;
    void Loading(double share) override { inner.Loading(share); }
    std::string OpenForInput(const std::string& path) override;
    std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                        const std::string& path) override;
    void WritePrivateProfileString(std::string_view section, std::string_view key,
                                   std::string_view value, const std::string& path) override;

  protected:
    void Ending() override {}

  private:
    /// Who answers: the script as long as it has an answer or an event left, then the player.
    bool ScriptAnswers() const { return !isOver || !script.Answers.empty(); }
    void Show(const PlayerAct& act);

    Platform& inner;
    Script script;
    RecordingHead head;
    std::string map;
    std::string settings;
    std::string keys; ///< those lately pressed, one sign each
    std::int64_t step = 0;
    std::int64_t overAt = 0;
    bool isStarted = false;
    bool isOver = false;
    bool waits = false; ///< by the watcher's "p"
    bool mapHasChanged = false;
};

} // namespace tumbledeep
