// The L and R mines: the walk by the wall, the turns, the kill.
#include "support/Scenario.h"

namespace tumbledeep {

constexpr auto MineLTick = &frmDocument::MineLTick;
constexpr auto MineRTick = &frmDocument::MineRTick;

TEST(WallMine, CirclesInTheOpenAndRoundABlock) {
    PlayFilms(R"(
        = the wall at the left hand | L:L
            .L.   L..   ...   ...   ...   ...   ...   ..L   .L.
            .#.   .#.   L#.   .#.   .#.   .#.   .#L   .#.   .#.
            ...   ...   ...   L..   .L.   ..L   ...   ...   ...)",
              MineLTick);
    PlayFilms(R"(
        = the wall at the right hand
            .R.   ..R   ...   ...   ...   ...   ...   R..   .R.
            .#.   .#.   .#R   .#.   .#.   .#.   R#.   .#.   .#.
            ...   ...   ...   ..R   .R.   R..   ...   ...   ...)",
              MineRTick);
}

TEST(WallMine, BlockedItTurnsAndWaits) {
    PlayFilms(R"(
        = the far side is taken without a look
            ###   ###   ###   ###   ###
            L.#   .L#   .L#   .L#   L.#
            ###   ###   ###   ###   ###
        = the hand side is taken if it is free
            #.##   #.##   #L##
            #L:#   #L:#   #.:#
        = an odd tag never moves | L:u
            L.   L.   L.
        = the rear mine of a pair first: it is blocked and turns | a=L:R b=L:R
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
        = with an odd tag | L:u dies
            L   L
            @   @
        = not on a diagonal | L:u
            L#   L#
            #@   #@)",
              MineLTick);
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

} // namespace tumbledeep
