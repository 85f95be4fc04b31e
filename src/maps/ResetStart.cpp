// Turns the sprites of a map into the board that is played.
#include "board/frmDocument.h"
#include "platform/Platform.h"

namespace tumbledeep {

void frmDocument::ResetStart() {
    ViewMovesX = true;
    ViewMovesY = true;
    AutoMoveMode = 2;
    MoveReady = true;
    YouDead = false;
    Services.Randomize();
    Area = AreaGrid();
    // The last stamp owns a cell that several objects share. PP mines are not stamped: the cell of
    // one reads empty until its first step.
    for (const Kind kind :
         {Kind::Gem1Type, Kind::HardDirt, Kind::Dirt, Kind::RoundRock, Kind::MovingMineT,
          Kind::MovingMineR, Kind::MovingMineL, Kind::MovingMineFL, Kind::MovingMineP}) {
        Stamp(kind);
    }
    Area(Near(You)) = Kind::You;
    YouCol = You.Left / Pitch + 1.0F;
    YouRow = RoundToEven(You.Top / Pitch + 1.0F);
    ViewChoice();
}

void frmDocument::Stamp(Kind kind) {
    Pool& pool = *PoolOf(kind);
    for (PoolIndex = 0; PoolIndex < pool.Count(); ++PoolIndex) {
        if (pool.Shown(PoolIndex)) Area(Near(pool[PoolIndex])) = kind;
    }
}

} // namespace tumbledeep
