// The text of the status bar.
#include "board/frmDocument.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmDocument::ShowGemsRemaining() {
    const std::string number = std::to_string(GemsLeft);
    Parent.Info.Panel = "Gems Remaining: " + (GemsLeft < 0 ? number : " " + number);
}

} // namespace tumbledeep
