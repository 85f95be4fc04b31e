// The straight runner: it turns only when stopped, and kills only what is straight ahead.
#include "board/frmDocument.h"

#include <array>

namespace tumbledeep {

namespace {

/// What a block does when the way ahead is not free.
struct Block {
    Heading Own;
    Heading Tested; ///< taken if the cell there is empty
    Heading Other;  ///< taken otherwise, without a look
};

// In the order in which the blocks run. The tag is read anew before each, so a turn from a
// horizontal heading to a vertical one is served in the same call, and the reverse is not.
constexpr std::array<Block, 4> Blocks{{{Heading::Right, Heading::Down, Heading::Up},
                                       {Heading::Left, Heading::Down, Heading::Up},
                                       {Heading::Up, Heading::Left, Heading::Right},
                                       {Heading::Down, Heading::Right, Heading::Left}}};

} // namespace

void frmDocument::MineFLTick() {
    const int count = MovingMineFL.Count();
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!MovingMineFL.Shown(PoolIndex)) continue;
        const PoolSprite mine = MovingMineFL[PoolIndex];
        for (const Block& block : Blocks) {
            if (mine.Tag != TagOf(block.Own)) continue;
            const Offset ahead = Ahead(block.Own);
            if (Area(Near(mine, ahead)) == Kind::Empty) {
                MoveSprite(mine, ahead, Kind::MovingMineFL);
            } else {
                const bool free = Area(Near(mine, Ahead(block.Tested))) == Kind::Empty;
                Turn(mine, free ? block.Tested : block.Other, Picture::MovingMineFLUpPic);
            }
            if (Area(Near(mine, ahead)) != Kind::You) continue;
            // A mine that kills running right has never told the gems remaining.
            if (block.Own == Heading::Right) AskPlayAgain();
            YouDie();
        }
    }
}

} // namespace tumbledeep
