// The life of a Bang: it waits for the next call, spreads once and is gone.
#include "board/frmDocument.h"

namespace tumbledeep {

void frmDocument::BangTick() {
    // The count is read once, so a Bang spawned as a new sprite waits for the next call; one
    // spawned into a hidden sprite further on is served in this one. Chains take their time by it.
    const int count = Bang.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!Bang.Shown(PoolIndex)) continue;
        SpreadBang();
        const PoolSprite bang = Bang[PoolIndex];
        Area(Near(bang)) = Kind::Empty;
        bang.Visible = false;
    }
}

} // namespace tumbledeep
