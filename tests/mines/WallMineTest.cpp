// The L and R mines: the walk by the wall, the turns, the kill.
#include "support/Scenario.h"

namespace tumbledeep {

constexpr auto MineLTick = &frmDocument::MineLTick;
constexpr auto MineRTick = &frmDocument::MineRTick;

TEST(WallMine, CirclesInTheOpenAndRoundABlock) {
    PlayFilms(R"(
        = anticlockwise
            ...   ...   ..L   .L.   ...
            .L.   ..L   ...   ...   .L.
        = the wall at the left hand | L:L
            .L.   L..   ...   ...   ...   ...   ...   ..L   .L.
            .#.   .#.   L#.   .#.   .#.   .#.   .#L   .#.   .#.
            ...   ...   ...   L..   .L.   ..L   ...   ...   ...)",
              MineLTick);
    PlayFilms(R"(
        = clockwise
            .R.   ..R   ...   ...   .R.
            ...   ...   ..R   .R.   ...
        = the wall at the right hand
            .R.   ..R   ...   ...   ...   ...   ...   R..   .R.
            .#.   .#.   .#R   .#.   .#.   .#.   R#.   .#.   .#.
            ...   ...   ...   ..R   .R.   R..   ...   ...   ...)",
              MineRTick);
}

TEST(WallMine, BlockedItTurnsAndWaits) {
    PlayFilms(R"(
        = the far side is taken without a look
            ####   ####   ####   ####   ####   ####
            L..#   .L.#   ..L#   ..L#   ..L#   .L.#
            ####   ####   ####   ####   ####   ####
        = the hand side is taken if it is free
            #.##   #.##   #L##
            #L:#   #L:#   #.:#
        = an odd tag never moves | L:u
            L.   L.   L.
        = the front mine first: both move | a=L:R b=L:R
            #####   #####
            ba..#   .LL.#
        = the rear mine first: it is blocked and turns | a=L:R b=L:R
            #####   #####   #####
            ab..#   L.L.#   ...L#
            ..###   ..###   L.###)",
              MineLTick);
}

TEST(WallMine, KillsWhoeverStandsNextToItAtTheEndOfItsTurn) {
    PlayFilms(R"(
        = after a step | dies
            ####   ####
            L.@#   .L@#
        = after a turn alone | dies
            L@   L@
        = with an odd tag | L:u dies
            L   L
            @   @
        = not on a diagonal | L:u
            L#   L#
            #@   #@)",
              MineLTick);
    Scenario hidden("L@ .@");
    hidden.Board.MovingMineL.Visible[1] = false;
    hidden.Run(MineLTick);
    EXPECT_FALSE(hidden.Ended);
}

TEST(WallMine, ShutInTurnsByAQuarterEachTime) {
    for (const auto& [mine, routine, tags] :
         {std::tuple{'L', MineLTick, "DLUR"}, std::tuple{'R', MineRTick, "ULDR"}}) {
        Scenario scene(std::string("###\n#") + mine + "#\n###");
        std::string seen;
        for (int i = 0; i < 4; ++i) {
            scene.Run(routine);
            seen += (mine == 'L' ? scene.Board.MovingMineL : scene.Board.MovingMineR).Tag[1];
        }
        EXPECT_EQ(seen, tags);
    }
}

TEST(WallMine, PictureChangesWithATurnAndNotWithAStep) {
    Scenario scene(R"(
        ###.
        L...)");
    const PoolSprite mine = scene.Board.MovingMineL[1];
    EXPECT_EQ(mine.Picture, Picture::MovingMineLRightPic);
    mine.Picture = Picture::MovingMineL;
    scene.Run(MineLTick);
    scene.Run(MineLTick);
    EXPECT_EQ(mine.Picture, Picture::MovingMineL);
    scene.Run(MineLTick); // the wall ends: a step and a turn in one call
    EXPECT_EQ(mine.Picture, Picture::MovingMineLUpPic);
    EXPECT_EQ(mine.Left, 3 * 360);
}

} // namespace tumbledeep
