// The size of the board window, and its place where it fits the parent.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// A board that leaves this much of the parent's outer size free fits it, in twips.
constexpr float Frame = 1080;
/// A board that fits is centred this much higher than the middle.
constexpr float Raised = 720;

} // namespace

void frmDocument::ResizeForm() {
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
    Form.Height = MapBottom;
    Form.Width = static_cast<float>(MapRight);
    const Window& parent = Parent.Form;
    if (parent.Height - Frame > Form.Height) {
        ViewMovesY = false;
        Form.Top = parent.Height / 2 - Form.Height / 2 - Raised;
    }
    if (parent.Width - Frame > Form.Width) {
        ViewMovesX = false;
        Form.Left = parent.Width / 2 - Form.Width / 2;
    }
}

} // namespace tumbledeep
