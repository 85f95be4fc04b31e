// The roll of rocks, gems and T mines: one try, on the side drawn for the whole call.
#include "board/frmDocument.h"
#include "platform/Platform.h"

namespace tumbledeep {

void frmDocument::DrawRollSide() { RollSide = Services.Rnd() < 0.5F ? 1.0F : 2.0F; }

void frmDocument::Roll(PoolSprite sprite, Kind kind) {
    const Offset side = RollSide == 1.0F ? ToRight : ToLeft;
    if (Area(Near(sprite, side + Below)) == Kind::Empty &&
        Area(Near(sprite, side)) == Kind::Empty) {
        MoveSprite(sprite, side, kind);
    }
}

} // namespace tumbledeep
