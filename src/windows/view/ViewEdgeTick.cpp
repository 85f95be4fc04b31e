// Mode 3 of the following view: when the player nears an edge of the parent, the board flips by a
// page. The two thresholds of an axis lie one page apart, so that the view never flips back and
// forth; tests/windows/ViewTest.cpp pins them.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

// All in twips.

/// A page is the parent's outer size less this.
constexpr float PageMargin = 1080;
/// The lower thresholds of the player's place in the parent: down, it lies above the upper edge.
constexpr float LowerDown = -720;
constexpr float LowerAcross = 0;

/// One axis: flips back from beyond the upper threshold, one page above `lower`, and forth from
/// below `lower`.
void Flip(float parentSize, float lower, float you, float& board) {
    const float page = parentSize - PageMargin;
    if (parentSize - (PageMargin - lower) < you + board) board -= page;
    if (you + board < lower) board += page;
}

} // namespace

void frmDocument::ViewEdgeTick() {
    Flip(Parent.Form.Height, LowerDown, You.Top, Form.Top);
    Flip(Parent.Form.Width, LowerAcross, You.Left, Form.Left);
}

} // namespace tumbledeep
