// Starts the map list from its beginning.
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmMain::MnuBeginagain_Click() {
    MapListFile = ListInUse();
    MapLine = FirstOfMapList(Services.AppPath(), MapListFile);
    const std::string ini = SettingsFile(Services);
    // Without an extension: the new process adds one.
    IniWrite(Services, "Level", "Load", MapLine, ini);
    IniWrite(Services, "Level", "StartMap", "True", ini);
    Relaunch("");
}

} // namespace tumbledeep
