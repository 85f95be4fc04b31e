// Opening map lists, with what the player is told when one can't be used, and the way from one
// process to the next by the settings. How a list is read and searched is formats/MapList.cpp's.
#include "base/Failure.h"
#include "formats/ProgramPath.h"
#include "host/Platform.h"
#include "windows/Settings.h"
#include "windows/frmMain.h"

namespace tumbledeep {

std::string frmMain::ListInUse() const {
    const std::string list = IniRead(Services, "Level", "MapList");
    return (list.empty() ? "Default" : list) + ".TBL";
}

FieldInput frmMain::OpenMapList(const std::string& directory, const std::string& name) const {
    try {
        return FieldInput(Services.OpenForInput(directory + "\\" + name));
    } catch (const Failure&) {
        Services.MsgBox("The map list " + getfilename(name) + " can't be opened.",
                        MsgBoxStyle::Stop);
        Services.End();
    }
}

std::string frmMain::FirstOfMapList(const std::string& directory, const std::string& name) const {
    FieldInput list = OpenMapList(directory, name);
    if (list.AtEnd()) {
        Services.MsgBox("The map list " + getfilename(name) + " is empty.", MsgBoxStyle::Stop);
        Services.End();
    }
    return list.Next().Text;
}

void frmMain::MnuBeginagain_Click() {
    // Without an extension: the new process adds one.
    PlayNext(FirstOfMapList(Services.AppPath(), ListInUse()));
}

void frmMain::PlayNext(const std::string& map) {
    IniWrite(Services, "Level", "Load", map);
    IniWrite(Services, "Level", "StartMap", BoolText(true));
    Relaunch("");
}

void frmMain::Relaunch(const std::string& argument) {
    Services.Shell(Services.AppPath() + "\\tumbledeep" + argument);
    Services.End();
}

void frmDocument::StartLastMap(bool on) const {
    IniWrite(Services, "Level", "StartMap", BoolText(on));
}

} // namespace tumbledeep
