// What follows a win or a death: the boxes, the search for the next map in its list, the start of
// the process that plays it. Every way from here ends this process. That a map is over is found by
// the rules.
#include "formats/MapList.h"
#include "formats/ProgramPath.h"
#include "host/Platform.h"
#include "windows/Settings.h"
#include "windows/frmMain.h"

namespace tumbledeep {

void frmDocument::EndMap(Outcome outcome) {
    if (outcome == Outcome::Won) {
        Services.MsgBox("You won", MsgBoxStyle::Stop);
        if (Services.MsgBox("Do you want to play the next level?", MsgBoxStyle::Question) ==
            MsgBoxAnswer::Yes) {
            NextLevel();
        }
        Services.End();
    }
    if (outcome == Outcome::Died) {
        Services.MsgBox("You died, with " + std::to_string(GemsLeft) + " gems remaining",
                        MsgBoxStyle::Stop);
    }
    if (Services.MsgBox("Do you want to play again?", MsgBoxStyle::Question) == MsgBoxAnswer::Yes) {
        IniWrite(Services, "Level", "Load", Form.Caption);
        // Only a won map sets the name. After a death it is empty, and the blank in front of it
        // says nothing to the new process; tests/windows/LevelFlowTest.cpp pins it.
        Parent.Relaunch(" " + LevelName);
    }
    Services.End();
}

void frmDocument::NextLevel() {
    const std::string directory = Services.AppPath();
    std::string listFile = Parent.ListInUse();
    LevelName = WithoutExtension(Form.Caption);
    while (true) {
        const auto search = FindNext(Parent.OpenMapList(directory, listFile), LevelName);
        if (search.Next) {
            IniWrite(Services, "Level", "Load", *search.Next + ".TBM");
            Parent.Relaunch("");
        }
        if (search.Found) {
            Services.MsgBox("There are no morelevels!", MsgBoxStyle::Ok);
            Services.End();
        }
        const int locate =
            Services.MsgBox("I couldn't find the next level in the current map list " + listFile +
                                " Do you want to try and locate it?",
                            MsgBoxStyle::Question);
        if (locate != MsgBoxAnswer::Yes) Services.End();
        const std::string chosen =
            Services.ShowOpen({"Open", directory, "TBM maplist (*.TBL)|*.TBL"});
        if (chosen.empty()) {
            IniWrite(Services, "Level", "StartMap", BoolText(false));
            Services.End();
        }
        // The list counts for this search alone, and is opened beside the program, wherever it was
        // chosen; tests/windows/LevelFlowTest.cpp pins it.
        listFile = getfilename(chosen);
    }
}

} // namespace tumbledeep
