// From a map that is won to the next one of the list.
#include "board/frmDocument.h"
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmDocument::NextLevel() {
    const std::string ini = SettingsFile(Services);
    const std::string directory = Services.AppPath();
    std::string listFile = Parent.ListInUse();
    LevelName = WithoutExtension(Form.Caption);
    while (true) {
        FieldInput list = Parent.OpenMapList(directory, listFile);
        bool found = list.AtEnd();
        while (!found && !list.AtEnd()) {
            ListLine = list.Next();
            found = ListLine == LevelName;
        }
        if (found && list.AtEnd()) {
            Services.MsgBox("There are no morelevels!", MsgBoxStyle::Ok);
            Services.End();
        }
        if (found) {
            ListLine = list.Next();
            IniWrite(Services, "Level", "Load", ListLine + ".TBM", ini);
            Parent.Relaunch("");
        }

        LocateAnswer = static_cast<std::int16_t>(
            Services.MsgBox("I couldn't find the next level in the current map list " + listFile +
                                " Do you want to try and locate it?",
                            MsgBoxStyle::Question));
        if (LocateAnswer != MsgBoxAnswer::Yes) Services.End();
        dlgCommonDialog = {"Open", directory, "TBM maplist (*.TBL)|*.TBL", "", ""};
        Services.ShowOpen(dlgCommonDialog);
        if (dlgCommonDialog.FileName.empty()) {
            IniWrite(Services, "Level", "StartMap", "False", ini);
            Services.End();
        }
        // For this search alone, and opened beside the program wherever it was chosen.
        listFile = dlgCommonDialog.FileTitle;
    }
}

} // namespace tumbledeep
