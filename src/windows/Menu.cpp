// The menu's entries by name, and what those do that stand in no file of their own: opening a map,
// setting a list, restarting, the check mark. The tree itself is made in frmMain.cpp.
#include "formats/ProgramPath.h"
#include "host/Platform.h"
#include "windows/Settings.h"
#include "windows/frmMain.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace tumbledeep {

namespace {

struct Handler {
    std::string_view Name;
    void (*Run)(frmMain&);
};

template <bool On, ViewMode Mode> void Follow(frmMain& main) {
    main.ActiveChild.AutoMoveChange(On, Mode);
}

constexpr std::array<Handler, 9> Handlers{{
    {"MnuLoadMap", [](frmMain& main) { main.MnuLoadMap_Click(); }},
    {"MnuBeginagain", [](frmMain& main) { main.MnuBeginagain_Click(); }},
    {"MnuMapList", [](frmMain& main) { main.MnuMapList_Click(); }},
    {"MnuRestart", [](frmMain& main) { main.MnuRestart_Click(); }},
    {"MnuStartLastMap", [](frmMain& main) { main.MnuStartLastMap_Click(); }},
    {"MnuOff", Follow<false, ViewMode::None>},
    {"MnuMode1", Follow<true, ViewMode::Centre>},
    {"MnuMode2", Follow<true, ViewMode::GradualCentre>},
    {"MnuMode3", Follow<true, ViewMode::EdgeOfScreen>},
}};

const Handler* Find(std::string_view name) {
    return std::find_if(Handlers.begin(), Handlers.end(),
                        [name](const Handler& handler) { return handler.Name == name; });
}

} // namespace

bool IsMenuHandler(std::string_view name) { return Find(name) != Handlers.end(); }

void RunMenuHandler(frmMain& main, std::string_view name) {
    const auto* const handler = Find(name);
    if (handler != Handlers.end()) handler->Run(main);
}

MenuEntry& frmMain::Entry(std::string_view name) {
    const auto found = std::find_if(Menu.begin(), Menu.end(),
                                    [name](const MenuEntry& entry) { return entry.Name == name; });
    if (found == Menu.end()) throw std::out_of_range("no such menu entry");
    return *found;
}

std::string frmMain::ChooseFile(const std::string& filter) const {
    return Services.ShowOpen({"Open", Services.AppPath(), filter});
}

void frmMain::MnuLoadMap_Click() {
    const std::string chosen = ChooseFile("Tumbledeep map (*.TBM)|*.TBM");
    if (chosen.empty()) return;
    CurrentMap = getfilename(chosen);
    PlayNext(CurrentMap);
}

void frmMain::MnuMapList_Click() {
    const std::string chosen = ChooseFile("Tumbledeep maplist (*.TBL)|*.TBL");
    if (chosen.empty()) return;
    IniWrite(Services, "Level", "MapList", WithoutExtension(getfilename(chosen)));
}

void frmMain::MnuRestart_Click() {
    const int answer =
        Services.MsgBox("Are you sure you want to restart the map?", MsgBoxStyle::Exclamation);
    if (answer == MsgBoxAnswer::Yes) PlayNext(CurrentMap);
}

void frmMain::MnuStartLastMap_Click() {
    MenuEntry& entry = Entry("MnuStartLastMap");
    entry.Checked = !entry.Checked;
    ActiveChild.StartLastMap(entry.Checked);
}

} // namespace tumbledeep
