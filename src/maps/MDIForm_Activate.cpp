// The parent window has come up for the first time.
#include "platform/Platform.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmMain::MDIForm_Activate() {
    ActiveChild.Form.Caption = "Area";
    ActiveChild.Form.Visible = true;
    CommandArg = Services.Command();
    StartupLoad();
}

} // namespace tumbledeep
