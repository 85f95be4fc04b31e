// The size of the board window, and its place where it fits the parent.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// A board that leaves this much of the parent's outer size free fits it, in twips.
constexpr float Frame = 1080;
/// A board that fits is centred this much higher than the middle.
constexpr float Raised = 720;
/// A board that does not fit begins this far from the parent's near edge, and ends this far from
/// the far one; across, the frame and the gap at the far edge are one number.
constexpr float EdgeGap = 180;
constexpr float FarGapAcross = 540;

/// Where a board that does not fit lies on one axis, in twips: at the parent's edge where the
/// player stands near one, the far edge winning, else where it is, with the player in the middle.
void LayAtEdge(float parentSize, float you, float boardSize, float atFarEdge, float& place) {
    if (parentSize / 2 > you) place = EdgeGap;
    if (parentSize / 2 > boardSize - you) place = atFarEdge;
}

} // namespace

void frmDocument::MeasureMap() {
    MapRight = 0;
    MapBottom = 0;
    // Only walls and dirt count: an object of another kind beyond them lies outside the window.
    for (const Kind kind : {Kind::HardDirt, Kind::Dirt}) {
        for (const int index : Pools[kind].InTurn()) {
            const Sprite& sprite = Pools[kind][index];
            const float bottom = SpriteSize + sprite.Top;
            const float right = SpriteSize + sprite.Left;
            if (bottom > MapBottom) MapBottom = bottom;
            if (right > MapRight) MapRight = RoundToEven(right);
        }
    }
}

void frmDocument::ResizeForm() {
    MeasureMap();
    Form.Height = MapBottom;
    Form.Width = static_cast<float>(MapRight);
    const Window& parent = Parent.Form;
    if (parent.Height - Frame > Form.Height) {
        ViewMovesY = false;
        Form.Top = parent.Height / 2 - Form.Height / 2 - Raised;
    } else {
        LayAtEdge(parent.Height, You.Top, Form.Height,
                  parent.Height - Frame - Form.Height - EdgeGap, Form.Top);
    }
    if (parent.Width - Frame > Form.Width) {
        ViewMovesX = false;
        Form.Left = parent.Width / 2 - Form.Width / 2;
    } else {
        LayAtEdge(parent.Width, You.Left, Form.Width, parent.Width - Form.Width - FarGapAcross,
                  Form.Left);
    }
}

} // namespace tumbledeep
