// One try of a hunting mine: the step ahead, and the turn towards the player.
#include "mines/Hunter.h"

namespace tumbledeep {

namespace {

/// A horizontal heading gives way to a vertical one and the reverse; ties go up and left.
Heading Aim(Heading present, const PoolSprite& mine, const Sprite& you) {
    if (present == Heading::Left || present == Heading::Right) {
        return you.Top > mine.Top ? Heading::Down : Heading::Up;
    }
    return you.Left > mine.Left ? Heading::Right : Heading::Left;
}

} // namespace

void frmDocument::HunterBlock(PoolSprite mine, const Hunter& rules, Heading heading) {
    const bool free = Area(Near(mine, Ahead(heading))) == Kind::Empty;
    if (free) MoveSprite(mine, Ahead(heading), rules.Cell);
    if (!free || rules.AlwaysTurns) Turn(mine, Aim(heading, mine, You), rules.UpPic);
}

} // namespace tumbledeep
