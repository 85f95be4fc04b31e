// The windows as they stand before the program does anything.
#include "shell/frmMain.h"

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

} // namespace tumbledeep
