// Who plays: the one road on which whatever the player does, and the clock's periods, come to the
// game. This is the player at the keyboard; Recorder writes down what comes by, Replay plays a
// script in the player's place. The front end calls, and catches ProgramEnd.
#pragma once

#include "windows/frmMain.h"

#include <string>

namespace tumbledeep {

class Hands {
  public:
    Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    virtual ~Hands() = default;

    /// The start-up, with its dialogs.
    virtual void Start(frmMain& game) { game.MDIForm_Activate(); }
    /// One thing that the player does.
    virtual void Act(frmMain& game, const PlayerAct& act) { game.Take(act); }
    /// A period of the timer.
    virtual void Period(frmMain& game) { game.TimerPeriod(); }
    /// True while periods count even when the clock stands, as a script does things in them.
    virtual bool NeedsPeriods() const { return false; }
    /// What is shown of the hands beside the game's own status, "" for nothing.
    virtual std::string Note() const { return ""; }
};

} // namespace tumbledeep
