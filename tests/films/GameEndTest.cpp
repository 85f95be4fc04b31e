// Won or dead: what the recount of gems counts, and what it misses. What the player is shown then
// is in windows/LevelFlowTest.cpp.
#include "formats/LoadMap.h"

#include <gtest/gtest.h>

namespace tumbledeep {

TEST(GameEnd, Recount) {
    Board board = LoadMap("gem1type 0 0\ngem1type 0 360", 1);
    Pool& gems = board.Pools[Kind::Gem1Type];
    EXPECT_EQ(board.GemTotal, 3) << "the template counts";
    const auto left = [&board] {
        board.CheckGameEnd();
        return board.GemsLeft;
    };
    EXPECT_EQ(left(), 2);
    board.SpawnObject(Kind::Gem1Type, 0, 0, Heading::Down); // the template
    EXPECT_EQ(left(), 3);
    board.SpawnObject(Kind::Gem1Type, 0, 0, Heading::Down); // a new one
    board.SpawnObject(Kind::Gem1Type, 0, 0, Heading::Down);
    EXPECT_EQ(left(), 3) << "gems made as new sprites are not counted";
    for (const int gem : {0, 1, 2, 3}) gems.Hide(gem);
    EXPECT_EQ(left(), -1);
    EXPECT_EQ(board.Result, Outcome::Running) << "what passes 0 between two counts is never won";
    gems.Show(0);
    board.YouDead = true;
    EXPECT_EQ(left(), 0);
    EXPECT_EQ(board.Result, Outcome::Won) << "with a gem on the board, and before the death";

    board = LoadMap("gem1type 0 0", 1);
    HeldKeys held;
    held.Set(Heading::Right, true);
    board.YouDie();
    for (int tick = 1; tick <= 10; ++tick) {
        EXPECT_EQ(board.Tick(held), tick < 10 ? Outcome::Running : Outcome::Died);
    }
    EXPECT_EQ(board.You, Board().You) << "the dead do not walk";
}

} // namespace tumbledeep
