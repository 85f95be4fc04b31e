// The menu's entries by name, and the handlers that belong to no other room.
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace tumbledeep {

namespace {

struct Handler {
    std::string_view Name;
    void (*Run)(frmMain&);
};

constexpr std::array<Handler, 9> Handlers{{
    {"MnuLoadMap", [](frmMain& main) { main.MnuLoadMap_Click(); }},
    {"MnuBeginagain", [](frmMain& main) { main.MnuBeginagain_Click(); }},
    {"MnuMapList", [](frmMain& main) { main.MnuMapList_Click(); }},
    {"MnuRestart", [](frmMain& main) { main.MnuRestart_Click(); }},
    {"MnuStartLastMap", [](frmMain& main) { main.MnuStartLastMap_Click(); }},
    {"MnuOff", [](frmMain& main) { main.ActiveChild.AutoMoveChange(false, 0); }},
    {"MnuMode1", [](frmMain& main) { main.ActiveChild.AutoMoveChange(true, 1); }},
    {"MnuMode2", [](frmMain& main) { main.ActiveChild.AutoMoveChange(true, 2); }},
    {"MnuMode3", [](frmMain& main) { main.ActiveChild.AutoMoveChange(true, 3); }},
}};

const Handler* Find(std::string_view name) {
    return std::find_if(Handlers.begin(), Handlers.end(),
                        [name](const Handler& handler) { return handler.Name == name; });
}

} // namespace

bool IsMenuHandler(std::string_view name) { return Find(name) != Handlers.end(); }

bool frmMain::MenuClick(std::string_view name) {
    const auto* const handler = Find(name);
    if (handler == Handlers.end()) return false;
    handler->Run(*this);
    return true;
}

MenuEntry& frmMain::Entry(std::string_view name) {
    const auto found = std::find_if(Menu.begin(), Menu.end(),
                                    [name](const MenuEntry& entry) { return entry.Name == name; });
    if (found == Menu.end()) throw std::out_of_range("no such menu entry");
    return *found;
}

bool frmMain::ChooseFile(const std::string& filter) {
    dlgCommonDialog = {"Open", Services.AppPath(), filter, "", ""};
    Services.ShowOpen(dlgCommonDialog);
    return !dlgCommonDialog.FileName.empty();
}

void frmMain::MnuLoadMap_Click() {
    if (!ChooseFile("Tumbledeep map (*.TBM)|*.TBM")) return;
    CurrentMap = dlgCommonDialog.FileTitle;
    const std::string ini = SettingsFile(Services);
    IniWrite(Services, "Level", "Load", CurrentMap, ini);
    IniWrite(Services, "Level", "StartMap", "True", ini);
    Relaunch("");
}

void frmMain::MnuMapList_Click() {
    if (!ChooseFile("Tumbledeep maplist (*.TBL)|*.TBL")) return;
    IniWrite(Services, "Level", "MapList", WithoutExtension(dlgCommonDialog.FileTitle),
             SettingsFile(Services));
}

void frmMain::MnuRestart_Click() {
    if (Services.MsgBox("Are you sure you want to restart the map?", MsgBoxStyle::Exclamation) !=
        MsgBoxAnswer::Yes) {
        return;
    }
    const std::string ini = SettingsFile(Services);
    IniWrite(Services, "Level", "Load", CurrentMap, ini);
    IniWrite(Services, "Level", "StartMap", "True", ini);
    Relaunch("");
}

void frmMain::MnuStartLastMap_Click() {
    MenuEntry& entry = Entry("MnuStartLastMap");
    entry.Checked = !entry.Checked;
    ActiveChild.StartLastMap(entry.Checked);
}

} // namespace tumbledeep
