// A whole game in memory for the tests of the windows: both windows on a platform that answers what
// a test tells it to. Rules alone are tested on a Board, by films.
#pragma once

#include "host/MemoryPlatform.h"
#include "windows/frmMain.h"

namespace tumbledeep {

struct Game {
    /// A game in whose window of 15360 by 11520 twips a map has been loaded; by default the player
    /// stands in a cell, counted from 1, with a gem far away. The view is off.
    explicit Game(const std::string& map) {
        Services.Settings() = "[AutoMove]\nMOVE=False\nMODE=2\n";
        Main.Form.Width = 15360;
        Main.Form.Height = 11520;
        Main.LoadNewMap(FieldInput(map));
    }
    explicit Game(int col = 1, int row = 1)
        : Game("you " + std::to_string((row - 1) * 360) + " " + std::to_string((col - 1) * 360) +
               "\ngem1type 107640 107640\n") {}

    /// Ticks, until the process ends.
    void Ticks(int count) {
        try {
            for (int i = 0; i < count && !Ended; ++i) Main.TimerPeriod();
        } catch (const ProgramEnd&) {
            Ended = true;
        }
    }
    /// One thing that the player does.
    void Take(const PlayerAct& act) {
        try {
            Main.Take(act);
        } catch (const ProgramEnd&) {
            Ended = true;
        }
    }
    void Type(const std::string& key) { Take({PlayerAct::Do::Type, key}); }

    MemoryPlatform Services;
    frmMain Main{Services};
    frmDocument& Board = Main.ActiveChild;
    bool Ended = false; ///< the process has ended itself
};

} // namespace tumbledeep
