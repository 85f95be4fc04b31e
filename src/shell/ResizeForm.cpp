// The size of the board window, and its place where it fits the parent.
#include "board/frmDocument.h"
#include "shell/frmMain.h"

namespace tumbledeep {

void frmDocument::ResizeForm() {
    MapRight = 0;
    MapBottom = 0;
    // Only walls and dirt count: an object of another kind beyond them lies outside the window.
    for (Pool* const pool : {&HardDirt, &Dirt}) {
        for (PoolIndex = 0; PoolIndex < pool->Count(); ++PoolIndex) {
            if (!pool->Shown(PoolIndex)) continue;
            const PoolSprite sprite = (*pool)[PoolIndex];
            const float bottom = SpriteSize + sprite.Top;
            const float right = SpriteSize + sprite.Left;
            if (bottom > MapBottom) MapBottom = bottom;
            if (right > MapRight) MapRight = RoundToEven(right);
        }
    }
    Form.Height = MapBottom;
    Form.Width = static_cast<float>(MapRight);
    const Window& parent = Parent.Form;
    if (parent.Height - 1080 > Form.Height) {
        ViewMovesY = false;
        Form.Top = parent.Height / 2 - Form.Height / 2 - 720;
    }
    if (parent.Width - 1080 > Form.Width) {
        ViewMovesX = false;
        Form.Left = parent.Width / 2 - Form.Width / 2;
    }
}

} // namespace tumbledeep
