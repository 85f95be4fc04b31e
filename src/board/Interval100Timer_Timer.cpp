// The clock's dispatch table. The order of the groups, and within them, is a rule of the game.
#include "board/frmDocument.h"

namespace tumbledeep {

void frmDocument::Interval100Timer_Timer() {
    // A cycle has 301 ticks: 300 and 0 are neighbours, and both are multiples of everything.
    TickCount = TickCount < 300 ? static_cast<std::int16_t>(TickCount + 1) : std::int16_t{0};
    const auto due = [this](int multiple) { return TickCount % multiple == 0; };

    if (due(10)) {
        CheckGameEnd();
        if (AutoMoveMode == 3 && AutoMoveOn) ViewEdgeTick();
        FactoryTick();
        MineLTick();
        MineFLTick();
        MineRTick();
        MineTTick();
    }
    if (due(6)) {
        RockTick();
        GemTick();
        BangTick();
        if (!YouDead) PollArrowKeys();
    }
    if (due(30)) {
        ShowGemsRemaining();
        MinePPTick();
    }
    if (due(20)) MinePTick();
    ViewTick();
    MoveReady = true;
}

} // namespace tumbledeep
