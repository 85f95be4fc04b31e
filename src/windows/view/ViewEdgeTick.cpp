// Mode 3 of the following view: a flip by a page. The thresholds of an axis lie one page apart, so
// the view never flips back and forth.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

constexpr float PageMargin = 1080;

/// One axis, in twips; `lower` is the lower threshold of the player's place in the parent.
void Flip(float parentSize, float lower, float you, float& board) {
    const float page = parentSize - PageMargin;
    if (parentSize - (PageMargin - lower) < you + board) board -= page;
    if (you + board < lower) board += page;
}

} // namespace

void frmDocument::ViewEdgeTick() {
    Flip(Parent.Form.Height, -720, You.Top, Form.Top);
    Flip(Parent.Form.Width, 0, You.Left, Form.Left);
}

} // namespace tumbledeep
