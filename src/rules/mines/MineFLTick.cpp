// One turn for each FL mine, the straight runner: it steps ahead, turns only when its way is
// blocked, and kills only what is straight ahead of it.
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// What a mine of one heading does.
struct Block {
    Heading Own;    ///< the heading, in which it steps if it can
    Heading Tested; ///< turned to when blocked, if the cell there is empty
    Heading Other;  ///< turned to otherwise, empty or not
};

// In this order, each block asks whether the mine has its heading now. So a mine that turns from
// right or left to down or up comes to a second block in the same turn and may step at once, and
// one that turns the other way does not; tests/films/MinesTest.cpp pins it.
constexpr std::array<Block, 4> Blocks{{{Heading::Right, Heading::Down, Heading::Up},
                                       {Heading::Left, Heading::Down, Heading::Up},
                                       {Heading::Up, Heading::Left, Heading::Right},
                                       {Heading::Down, Heading::Right, Heading::Left}}};

/// The step or the turn. Returns whether the player stands ahead of the mine afterwards.
bool RunBlock(Board& board, int mine, const Block& block) {
    const Pool& mines = board.Pools[Kind::MovingMineFL];
    const Offset ahead = Ahead(block.Own);
    if (board.Area(mines.CellOf(mine, ahead)) == Kind::Empty) {
        board.MoveSprite(Kind::MovingMineFL, mine, ahead);
    } else {
        const bool free = board.Area(mines.CellOf(mine, Ahead(block.Tested))) == Kind::Empty;
        board.Turn(Kind::MovingMineFL, mine, free ? block.Tested : block.Other);
    }
    return board.Area(mines.CellOf(mine, ahead)) == Kind::You;
}

} // namespace

void Board::MineFLTick() {
    const Pool& mines = Pools[Kind::MovingMineFL];
    for (const int mine : mines.InTurn()) {
        for (const Block& block : Blocks) {
            if (mines.HeadingOf(mine) != block.Own || !RunBlock(*this, mine, block)) continue;
            // A quirk that players know: killed by a mine that runs right, they are not told the
            // gems remaining; tests/films/MinesTest.cpp pins it.
            return Die(block.Own == Heading::Right ? Outcome::DiedUntold : Outcome::Died);
        }
    }
}

} // namespace tumbledeep
