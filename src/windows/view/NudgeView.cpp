// Mode 1 of the following view: the board shifts by a cell along with each step of the player. The
// limits differ from side to side, and players know them; tests/windows/ViewTest.cpp pins them.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// In twips. Up, left and down, the board follows from this far before the parent's middle on; to
/// the right, from the middle on.
constexpr float MiddleMargin = 1024;
/// In twips. Downward, the board follows while it reaches below a line this far above the parent's
/// lower edge.
constexpr float LowerMargin = 1250;

/// Whether the board is to shift after a step that ended at `x`, `y`, in twips inside the parent.
bool Follows(const frmDocument& board, const Window& parent, Heading way, float x, float y) {
    const Window& form = board.Form;
    switch (way) {
    case Heading::Up:
        return board.ViewMovesY && form.Top < 0 && parent.Height / 2 + MiddleMargin > y;
    case Heading::Down:
        return board.ViewMovesY && parent.Height - LowerMargin < form.Height + form.Top &&
               parent.Height / 2 - MiddleMargin < y;
    case Heading::Left:
        return board.ViewMovesX && form.Left < 0 && parent.Width / 2 + MiddleMargin > x;
    case Heading::Right:
        return board.ViewMovesX && parent.Width - Pitch < form.Width + form.Left &&
               parent.Width / 2 < x;
    }
    return false;
}

} // namespace

void frmDocument::NudgeView() {
    if (!AutoMoveOn || AutoMoveMode != ViewMode::Centre) return;
    for (const Walk& walk : Walks) {
        if (Follows(*this, Parent.Form, walk.Way, walk.Left + Form.Left, walk.Top + Form.Top)) {
            ShiftByCells(Form, -Ahead(walk.Way));
        }
    }
}

} // namespace tumbledeep
