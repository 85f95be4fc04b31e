// Won or dead. Runs at every multiple of 10 ticks.
#include "board/frmDocument.h"
#include "platform/Platform.h"

namespace tumbledeep {

void frmDocument::CheckGameEnd() {
    // Both counts include the template. Gems that a factory made as new sprites lie outside
    // `GemTotal`, so a map can be won with such a gem still on the board.
    GemsLeft = static_cast<std::int16_t>(GemTotal - Gem1Type.HiddenCount());
    PoolIndex = Gem1Type.Count();
    if (GemsLeft == 0) {
        Services.MsgBox("You won", MsgBoxStyle::Stop);
        Answer = static_cast<std::int16_t>(
            Services.MsgBox("Do you want to play the next level?", MsgBoxStyle::Question));
        if (Answer == MsgBoxAnswer::Yes) NextLevel();
        Services.End();
    }
    if (YouDead) YouDie();
}

} // namespace tumbledeep
