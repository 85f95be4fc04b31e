// The windows as they stand before the program does anything, with the menu's tree, and the way of
// whatever the player does to the routine that it is for. Start-up and lists are in flow/, the
// menu's handlers in Menu.cpp.
#include "windows/frmMain.h"

namespace tumbledeep {

frmMain::frmMain(Platform& services)
    : Services(services),
      Menu{
          {1, "&File", "MnuFile", true},
          {2, "&Load Map", "MnuLoadMap"},
          {2, "Start from the &Beginning of this maplist", "MnuBeginagain"},
          {2, "Set new &Map List", "MnuMapList"},
          {2, "&Restart Map", "MnuRestart"},
          {1, "&Settings", "MnuSettings", true},
          {2, "Start with last played map", "MnuStartLastMap"},
          {2, "AutoMove", "MnuAutoMove", true},
          {3, "Off", "MnuOff"},
          {3, "Mode1", "MnuMode1"},
          {3, "Mode2", "MnuMode2"},
          {3, "Mode3", "MnuMode3"},
      },
      ActiveChild(*this, services) {
    Form.Caption = "Tumble Deep";
}

void frmMain::Take(const PlayerAct& act) {
    using Do = PlayerAct::Do;
    frmDocument& board = ActiveChild;
    switch (act.What) {
    case Do::Type:
        board.Input_Box.Text = act.Text;
        board.Input_Box_Change();
        break;
    case Do::Press: board.ArrowKeys.Set(act.Key, true); break;
    case Do::Release: board.ArrowKeys.Set(act.Key, false); break;
    case Do::Click: board.Form_MouseDown(LeftButton); break;
    case Do::Drag:
        board.Form.Left += act.X;
        board.Form.Top += act.Y;
        break;
    case Do::GotFocus: board.Form_GotFocus(); break;
    case Do::LostFocus: board.Form_LostFocus(); break;
    case Do::Menu: RunMenuHandler(*this, act.Text); break;
    case Do::Resize:
        Form.Width = act.X;
        Form.Height = act.Y;
        break;
    }
}

void frmMain::TimerPeriod() {
    if (ActiveChild.Interval100Timer.Enabled) ActiveChild.Interval100Timer_Timer();
}

} // namespace tumbledeep
