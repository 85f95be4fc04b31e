// Mode 2 of the following view: on every tick the board glides a tenth of the way towards the place
// at which the player stands in the parent's middle. The other modes are in the files beside this
// one.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// In twips: the first test below holds from this far short of the aim on, the second one up to
/// this far and two cells beyond it.
constexpr float Reach = 720;

/// One axis, in twips: the parent's outer size, the player's and the board's position. The tests
/// overlap, and where both hold the board moves twice; nor does it stop at the map's edge.
/// tests/windows/ViewTest.cpp pins it.
void Glide(float parentSize, float you, float& board) {
    const float target = parentSize / 2 - you - Pitch;
    if (target - Reach < board) board -= (board - target) / 10;
    if (parentSize / 2 - you + Pitch + Reach > board) board -= (board - target) / 10;
}

} // namespace

void frmDocument::ViewTick() {
    if (AutoMoveMode != ViewMode::GradualCentre || !AutoMoveOn) return;
    Glide(Parent.Form.Height, You.Top, Form.Top);
    Glide(Parent.Form.Width, You.Left, Form.Left);
}

} // namespace tumbledeep
