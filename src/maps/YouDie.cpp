// The death sequence, which every hazard runs and which ends the process.
#include "board/frmDocument.h"
#include "maps/Module1.h"
#include "platform/Platform.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmDocument::YouDie() {
    YouDead = true;
    Services.MsgBox("You died, with " + std::to_string(GemsLeft) + " gems remaining",
                    MsgBoxStyle::Stop);
    AskPlayAgain();
}

void frmDocument::AskPlayAgain() {
    YouDead = true;
    Answer = static_cast<std::int16_t>(
        Services.MsgBox("Do you want to play again?", MsgBoxStyle::Question));
    if (Answer == MsgBoxAnswer::Yes) {
        IniWrite(Services, "Level", "Load", Form.Caption, SettingsFile(Services));
        Parent.Relaunch(" " + LevelName);
    }
    Services.End();
}

} // namespace tumbledeep
