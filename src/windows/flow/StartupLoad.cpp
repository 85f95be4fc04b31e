// Which map this process plays, and its loading: from the command line, the settings or the open
// dialog to an open file and the captions. The tests of extensions differ from step to step, and
// players' settings rely on each of them; tests/windows/StartupLoadTest.cpp pins them.
#include "base/Failure.h"
#include "base/Text.h"
#include "formats/ProgramPath.h"
#include "host/Platform.h"
#include "windows/Settings.h"
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// The name of a map as the window's caption shows it.
std::string CaptionPart(std::string_view name) {
    return " - " + (IsMapName(name) ? WithoutExtension(name) : std::string(name));
}

} // namespace

void frmMain::MDIForm_Activate() {
    ActiveChild.Form.Caption = "Area";
    ActiveChild.Form.Visible = true;
    CommandArg = Services.Command();
    StartupLoad();
}

void frmMain::StartupLoad() {
    ActiveChild.Randomize(Services.Seed());
    const std::string lastMap(Trimmed(IniRead(Services, "Level", "Load")));
    bool startMapOn = Trimmed(IniRead(Services, "Level", "StartMap")) != BoolText(false);
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

/// The player picks a map or a list. False when nothing was picked.
bool frmMain::ChooseAtStart() {
    const std::string chosen = ChooseFile("Tumbledeep map or maplist (*.TBM , *.TBL)|*.TBM;*.TBL");
    if (chosen.empty()) return false;
    CurrentMap = getfilename(chosen);
    if (CurrentMap.ends_with(".TBL")) {
        IniWrite(Services, "Level", "MapList", WithoutExtension(CurrentMap));
        CurrentMap = FirstOfMapList(Services.AppPath(), CurrentMap);
        IniWrite(Services, "Level", "Load", CurrentMap);
        IniWrite(Services, "Level", "StartMap", BoolText(true));
    }
    MapDir = getpath(chosen);
    Form.Caption += CaptionPart(CurrentMap);
    if (!IsMapName(CurrentMap)) CurrentMap += ".TBM";
    return true;
}

/// Takes map or list and folder from the command line, if it names one.
void frmMain::TakeFromCommandLine() {
    const std::string command = Services.Command();
    if (command.ends_with('"')) {
        CommandArg = command.size() < 2 ? "" : command.substr(1, command.size() - 2);
    }
    const bool isMap = CommandArg.ends_with(".TBM");
    const bool isList = CommandArg.ends_with(".TBL");
    if (isMap || isList) {
        const bool hasDrive = HasDrive(CommandArg);
        MapDir = hasDrive ? getpath(CommandArg) : Services.AppPath();
        CurrentMap = hasDrive ? getfilename(CommandArg) : CommandArg;
        if (isList) IsMapList = true;
        // A list from elsewhere is played but not kept: lists in use lie beside the program.
        if (isList && !hasDrive) {
            IniWrite(Services, "Level", "MapList", WithoutExtension(getfilename(CommandArg)));
        }
    }
    if (CurrentMap.empty()) return;
    Form.Caption += CaptionPart(CurrentMap);
    if (!IsMapName(CurrentMap)) CurrentMap += ".tbm";
    ActiveChild.Form.Caption = CurrentMap;
}

/// Makes what was picked or named, or else the last map, into the file name of a map and its
/// folder, and writes it into the settings.
void frmMain::SettleMap(const std::string& lastMap) {
    if (!lastMap.empty() && CommandArg.empty() && CurrentMap.empty()) CurrentMap = lastMap;
    if (IsMapName(CurrentMap)) IniWrite(Services, "Level", "Load", CurrentMap);
    if (CurrentMap.ends_with(".tbl") || CurrentMap.ends_with(".TBL")) {
        IniWrite(Services, "Level", "MapList", WithoutExtension(CurrentMap));
    }
    if (!IsMapName(CurrentMap)) {
        Form.Caption += CaptionPart(CurrentMap);
        CurrentMap += ".tbm";
    }
    if (MapDir.empty()) MapDir = Services.AppPath();
    if (IsMapList) {
        if (IsMapName(CurrentMap)) CurrentMap = WithoutExtension(CurrentMap);
        CurrentMap = FirstOfMapList(MapDir, CurrentMap);
    }
    // ".tbm" is not among these, so a name in lower case gets a second extension and loses it
    // below.
    if (!CurrentMap.ends_with(".Tbm") && !CurrentMap.ends_with(".TBM")) CurrentMap += ".TBM";
    for (const std::string_view doubled : {".tbm.TBM", ".TBM.tbm", ".TBM.TBM", ".tbm.tbm"}) {
        if (!CurrentMap.ends_with(doubled)) continue;
        CurrentMap = WithoutExtension(CurrentMap);
        break;
    }
    ActiveChild.Form.Caption = CurrentMap;
    IniWrite(Services, "Level", "Load", CurrentMap);
}

/// False when the map is not found and another can be chosen.
bool frmMain::OpenAndLoad(bool lastTry) {
    try {
        LoadNewMap(FieldInput(Services.OpenForInput(MapDir + "\\" + CurrentMap)));
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
