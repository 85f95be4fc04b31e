// Focus and mouse events of the board window. A pause by a key, a click and a lost focus do not
// know of each other: any of them may end another's.
#include "board/frmDocument.h"
#include "platform/Platform.h"

namespace tumbledeep {

namespace {

constexpr int LeftButton = 1;

} // namespace

void frmDocument::Form_GotFocus() { Interval100Timer.Enabled = true; }

void frmDocument::Form_LostFocus() { Interval100Timer.Enabled = false; }

void frmDocument::Form_MouseDown(int button) {
    if (button == LeftButton) Interval100Timer.Enabled = !Interval100Timer.Enabled;
}

void frmDocument::Form_MouseMove(int button) {
    if (button == LeftButton) Services.DragBoard();
}

} // namespace tumbledeep
