// The door through which every map comes in: the command line, the settings or the open dialog.
// The tests of extensions differ from step to step, and players' settings rely on each of them.
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

namespace tumbledeep {

namespace {

bool IsMap(std::string_view name) { return name.ends_with(".TBM") || name.ends_with(".tbm"); }

/// The name of a map as the window's caption shows it.
std::string CaptionPart(std::string_view name) {
    return " - " + (IsMap(name) ? WithoutExtension(name) : std::string(name));
}

} // namespace

void frmMain::StartupLoad() {
    Services.Randomize();
    const std::string ini = SettingsFile(Services);
    const std::string lastMap = Trim(IniRead(Services, "Level", "Load", ini));
    bool startMapOn = Trim(IniRead(Services, "Level", "StartMap", ini)) != "False";
    Entry("MnuStartLastMap").Checked = startMapOn;

    for (const bool lastTry : {false, true}) {
        if (!startMapOn || (lastMap.empty() && CommandArg.empty())) {
            if (!ChooseAtStart()) return;
        } else {
            TakeFromCommandLine();
        }
        SettleMap(lastMap);
        if (OpenAndLoad(lastTry)) return;
        startMapOn = false;
    }
}

bool frmMain::ChooseAtStart() {
    if (!ChooseFile("Tumbledeep map or maplist (*.TBM , *.TBL)|*.TBM;*.TBL")) return false;
    CurrentMap = dlgCommonDialog.FileTitle;
    if (CurrentMap.ends_with(".TBL")) {
        const std::string ini = SettingsFile(Services);
        const std::string list = WithoutExtension(CurrentMap);
        IniWrite(Services, "Level", "MapList", list, ini);
        MapListFile = list + ".TBL";
        MapLine = FirstOfMapList(Services.AppPath(), MapListFile);
        IniWrite(Services, "Level", "Load", MapLine, ini);
        IniWrite(Services, "Level", "StartMap", "True", ini);
        CurrentMap = MapLine;
    }
    MapDir = getpath(dlgCommonDialog.FileName);
    Form.Caption += CaptionPart(CurrentMap);
    if (!IsMap(CurrentMap)) CurrentMap += ".TBM";
    return true;
}

void frmMain::TakeFromCommandLine() {
    const std::string command = Services.Command();
    if (command.ends_with('"')) {
        CommandArg = command.size() < 2 ? "" : command.substr(1, command.size() - 2);
    }
    const bool isMap = CommandArg.ends_with(".TBM");
    const bool isList = CommandArg.ends_with(".TBL");
    if (isMap || isList) {
        const bool hasDrive = CommandArg[1] == ':';
        MapDir = hasDrive ? getpath(CommandArg) : Services.AppPath();
        CurrentMap = hasDrive ? getfilename(CommandArg) : CommandArg;
        if (isList) IsMapList = true;
        // A list from elsewhere is played but not kept: lists in use lie beside the program.
        if (isList && !hasDrive) {
            IniWrite(Services, "Level", "MapList", WithoutExtension(getfilename(CommandArg)),
                     SettingsFile(Services));
        }
    }
    if (CurrentMap.empty()) return;
    Form.Caption += CaptionPart(CurrentMap);
    if (!IsMap(CurrentMap)) CurrentMap += ".tbm";
    ActiveChild.Form.Caption = CurrentMap;
}

void frmMain::SettleMap(const std::string& lastMap) {
    const std::string ini = SettingsFile(Services);
    if (!lastMap.empty() && CommandArg.empty() && CurrentMap.empty()) CurrentMap = lastMap;
    if (IsMap(CurrentMap)) IniWrite(Services, "Level", "Load", CurrentMap, ini);
    if (CurrentMap.ends_with(".tbl") || CurrentMap.ends_with(".TBL")) {
        IniWrite(Services, "Level", "MapList", WithoutExtension(CurrentMap), ini);
    }
    if (!IsMap(CurrentMap)) {
        Form.Caption += CaptionPart(CurrentMap);
        CurrentMap += ".tbm";
    }
    if (MapDir.empty()) MapDir = Services.AppPath();
    if (IsMapList) {
        if (IsMap(CurrentMap)) CurrentMap = WithoutExtension(CurrentMap);
        MapLine = FirstOfMapList(MapDir, CurrentMap);
        CurrentMap = MapLine;
    }
    // ".tbm" is not among these, so a name in lower case gets a second extension, and loses it.
    if (!CurrentMap.ends_with(".Tbm") && !CurrentMap.ends_with(".TBM")) CurrentMap += ".TBM";
    for (const std::string_view doubled : {".tbm.TBM", ".TBM.tbm", ".TBM.TBM", ".tbm.tbm"}) {
        if (!CurrentMap.ends_with(doubled)) continue;
        CurrentMap = WithoutExtension(CurrentMap);
        break;
    }
    ActiveChild.Form.Caption = CurrentMap;
    IniWrite(Services, "Level", "Load", CurrentMap, ini);
}

/// False when the map is not found and another can be chosen.
bool frmMain::OpenAndLoad(bool lastTry) {
    try {
        MapFile = FieldInput(Services.OpenForInput(MapDir + "\\" + CurrentMap));
        LoadNewMap();
    } catch (const Failure& failure) {
        if (failure.Number != Failure::FileNotFound) {
            // The spelling is the game's own and known to players.
            Services.MsgBox("An unknown error occured" + std::to_string(failure.Number),
                            MsgBoxStyle::Ok);
        } else if (!lastTry) {
            return false;
        } else {
            Services.MsgBox("The map " + getfilename(CurrentMap) + " can't be opened.",
                            MsgBoxStyle::Stop);
            Services.End();
        }
    }
    return true;
}

} // namespace tumbledeep
