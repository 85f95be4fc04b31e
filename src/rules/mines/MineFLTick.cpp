// One turn for each FL mine, the straight runner: it steps ahead, turns only when its way is
// blocked, and kills only what is straight ahead of it.
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// What a mine of one heading turns to when its way is blocked.
struct Turns {
    Heading Tested; ///< if the cell there is empty
    Heading Other;  ///< otherwise, empty or not
};

/// By heading.
constexpr std::array<Turns, 4> WhenBlocked{{{Heading::Left, Heading::Right},
                                            {Heading::Right, Heading::Left},
                                            {Heading::Down, Heading::Up},
                                            {Heading::Down, Heading::Up}}};

/// The step or the turn of a mine with that heading. Returns whether the player stands ahead of the
/// mine afterwards, in the old heading.
bool Try(Board& board, int mine, Heading heading) {
    Pool& mines = board.Pools[Kind::MovingMineFL];
    const auto isFree = [&](Heading way) {
        return board.Area(mines.CellOf(mine, Ahead(way))) == Kind::Empty;
    };
    if (isFree(heading)) {
        board.MoveSprite(Kind::MovingMineFL, mine, Ahead(heading));
    } else {
        const Turns& turns = WhenBlocked[Index(heading)];
        mines.Turn(mine, isFree(turns.Tested) ? turns.Tested : turns.Other);
    }
    return board.Area(mines.CellOf(mine, Ahead(heading))) == Kind::You;
}

} // namespace

void Board::MineFLTick() {
    const Pool& mines = Pools[Kind::MovingMineFL];
    for (const int mine : mines.InTurn()) {
        const auto heading = mines.HeadingOf(mine);
        if (!heading) continue;
        // A quirk that players know: killed by a mine that runs right, they are not told the gems
        // remaining; tests/films/MinesTest.cpp pins it, and what follows.
        if (Try(*this, mine, *heading)) {
            return Die(*heading == Heading::Right ? Outcome::DiedUntold : Outcome::Died);
        }
        // A mine that has turned from right or left to down or up may step at once. One that has
        // turned the other way may not.
        const auto turned = mines.HeadingOf(mine);
        if (IsVertical(*heading) || !IsVertical(*turned)) continue;
        if (Try(*this, mine, *turned)) return YouDie();
    }
}

} // namespace tumbledeep
