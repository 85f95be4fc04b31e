// Mode 2 of the following view: a glide towards the player, a tenth of the way at a time.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// How far on its near side of the aim the board is still in reach of the first test, in twips.
constexpr float Reach = 720;

/// One axis, in twips: the parent's outer size, the player's and the board's position. The two
/// tests overlap, and in the overlap the board moves twice. It may leave the map's edge behind.
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
