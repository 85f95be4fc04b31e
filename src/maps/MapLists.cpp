// Opening map lists, and the way from one process to the next.
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

namespace tumbledeep {

std::string frmMain::ListInUse() {
    const std::string list = IniRead(Services, "Level", "MapList", SettingsFile(Services));
    return (list.empty() ? "Default" : list) + ".TBL";
}

FieldInput frmMain::OpenMapList(const std::string& directory, const std::string& name) {
    try {
        return FieldInput(Services.OpenForInput(directory + "\\" + name));
    } catch (const Failure&) {
        Services.MsgBox("The map list " + getfilename(name) + " can't be opened.",
                        MsgBoxStyle::Stop);
        Services.End();
    }
}

std::string frmMain::FirstOfMapList(const std::string& directory, const std::string& name) {
    FieldInput list = OpenMapList(directory, name);
    if (list.AtEnd()) {
        Services.MsgBox("The map list " + getfilename(name) + " is empty.", MsgBoxStyle::Stop);
        Services.End();
    }
    return list.Next();
}

void frmMain::Relaunch(const std::string& argument) {
    Services.Shell(Services.AppPath() + "\\tumbledeep" + argument);
    Services.End();
}

} // namespace tumbledeep
