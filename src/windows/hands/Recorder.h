// Writes down what the player does and answers, as a script that plays to the same end. It stands
// on both sides of the game: acts and periods pass it on their way in, what the game asks of its
// system on the way out. Each line is written as it happens, so that a crash leaves a script too.
//
// A script begins in a folder without settings and names its map. So the dialogs of the start-up
// are not recorded; in their place the head answers the first start's question for the view that is
// set.
#pragma once

#include "formats/RecordingHead.h"
#include "formats/Script.h"
#include "host/Platform.h"
#include "windows/hands/Hands.h"

#include <functional>

namespace tumbledeep {

class Recorder final : public Hands, public Platform {
  public:
    /// Asks `system` all that the game asks, which must outlive it; `write` gets the lines.
    Recorder(Platform& system, std::function<void(const std::string& line)> write);

    void Start(frmMain& game) override;
    void Act(frmMain& game, const PlayerAct& act) override;
    void Period(frmMain& game) override;
    /// The player ends the program: the last line is written if there is none yet.
    void Finish(const frmMain& game);

    int MsgBox(const std::string& text, int style) override;
    std::string InputBox(const std::string& prompt) override;
    std::string ShowOpen(const OpenDialog& dialog) override;
    void DragBoard() override { inner.DragBoard(); }
    void Shell(const std::string& commandLine) override { inner.Shell(commandLine); }
    std::string AppPath() const override { return inner.AppPath(); }
    std::string Command() const override { return inner.Command(); }
    /// The same number each time.
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
    /// Lets the game do something, in a step by the trace's count, and takes note of its end.
    void Watch(const frmMain& game, std::int64_t step, const std::function<void()>& something);
    void WriteHead(const frmMain& game);
    void NoteAnswer(const ScriptAnswer& answer);

    Platform& inner;
    std::function<void(const std::string&)> write;
    RecordingHead head;
    std::int64_t ticks = 0; ///< that have begun: a step is a tick, as paused time is not recorded
    bool viewIsChosen = false; ///< the start-up has looked up the following view
    bool isStarted = false;
    bool hasEnded = false;
};

} // namespace tumbledeep
