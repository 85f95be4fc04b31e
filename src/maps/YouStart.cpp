// The player's place while a map loads.
#include "board/frmDocument.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmDocument::YouStart() {
    Area(Near(You)) = Kind::You;
    YouCol = You.Left / Pitch + 1.0F;
    YouRow = RoundToEven(You.Top / Pitch + 1.0F);
    Form.Top = Parent.Form.Height / 2.0F - You.Top;
    Form.Left = Parent.Form.Width / 2.0F - You.Left;
}

} // namespace tumbledeep
