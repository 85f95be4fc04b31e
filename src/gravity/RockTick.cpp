// The gravity of rocks. There is no falling state: a rock falls when its turn finds the cell below
// empty, and only the turn in which it has fallen can hurt.
#include "board/frmDocument.h"
#include "platform/Platform.h"

namespace tumbledeep {

void frmDocument::RockTick() {
    DrawRollSide();
    const int count = RoundRock.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!RoundRock.Shown(PoolIndex)) continue;
        const PoolSprite rock = RoundRock[PoolIndex];
        switch (Area(Near(rock, Below))) {
        case Kind::Empty:
            MoveSprite(rock, Below, Kind::RoundRock);
            RockLanding(rock);
            break;
        case Kind::Gem1Type:
        case Kind::RoundRock: Roll(rock, Kind::RoundRock); break;
        default: break; // rests, on the player too
        }
    }
}

/// What a rock that has just fallen does to the cell now below it.
void frmDocument::RockLanding(PoolSprite rock) {
    const Kind below = Area(Near(rock, Below));
    if (below == Kind::You) YouDie();
    if (!IsMine(below)) return;

    // A hidden mine left in that very cell counts like a visible one: a Bang for each.
    Pool& mines = *PoolOf(below);
    const int count = mines.Count();
    const float top = rock.Top + Pitch;
    for (InnerIndex = mines.NextAt(0, rock.Left, top); InnerIndex < count;
         InnerIndex = mines.NextAt(InnerIndex + 1, rock.Left, top)) {
        const PoolSprite mine = mines[InnerIndex];
        mine.Visible = false;
        rock.Visible = false;
        SpawnObject(KindText(Kind::Bang), mine.Left, mine.Top, TagOf(Heading::Down));
        Area(Near(rock)) = Kind::Empty;
        Area(Near(mine)) = Kind::Bang;
    }
}

} // namespace tumbledeep
