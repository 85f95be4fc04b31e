// The straight runner: it turns only when stopped, and kills only what is straight ahead.
#include "world/Board.h"

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

/// The step or the turn. Returns whether the player stands ahead of the mine afterwards.
bool RunBlock(Board& board, int mine, const Block& block) {
    const Sprite& sprite = board.Pools[Kind::MovingMineFL][mine];
    const Offset ahead = Ahead(block.Own);
    if (board.Area(CellOf(sprite, ahead)) == Kind::Empty) {
        board.MoveSprite(Kind::MovingMineFL, mine, ahead);
    } else {
        const bool free = board.Area(CellOf(sprite, Ahead(block.Tested))) == Kind::Empty;
        board.Turn(Kind::MovingMineFL, mine, free ? block.Tested : block.Other);
    }
    return board.Area(CellOf(sprite, ahead)) == Kind::You;
}

} // namespace

void Board::MineFLTick() {
    const Pool& mines = Pools[Kind::MovingMineFL];
    for (const int mine : mines.InTurn()) {
        for (const Block& block : Blocks) {
            if (mines.HeadingOf(mine) != block.Own || !RunBlock(*this, mine, block)) continue;
            // A mine that kills running right has never told the gems remaining;
            // tests/films/MinesTest.cpp pins it.
            return Die(block.Own == Heading::Right ? Outcome::DiedUntold : Outcome::Died);
        }
    }
}

} // namespace tumbledeep
