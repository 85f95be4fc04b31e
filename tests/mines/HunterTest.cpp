// The P and PP mines: when they turn, where to, and whom they kill.
#include "support/Scenario.h"

namespace tumbledeep {

TEST(MineP, TurnsOnlyWhenBlocked) {
    PlayFilms(R"(
        = runs on past the player's column
            P..   .P.   ..P
            ...   ...   ...
            @..   @..   @..
        = turns down and steps in one call
            P#.   .#.
            ...   P..
            ..@   ..@
        = level with the player it turns up, and blocked there too to the left; then it steps
            #####   #####   #####
            @..P#   @..P#   @.P.#
        = a turn from up to right costs the call | P:U
            #..   #..   #..
            P..   P..   .P.
            ..@   ..@   ..@)",
              &frmDocument::MinePTick);
}

TEST(MinePP, ClosesInOnAStaircase) {
    PlayFilms(R"(
        = to the lower right, then up on the tie
            Q......  .Q.....  .......  .......  .......  .......  .......  .......
            .......  .......  .Q.....  ..Q....  .......  .......  ...Q...  ....Q..
            ......@  ......@  ......@  ......@  ..Q...@  ...Q..@  ......@  ......@
        = a blocked axis costs the turn | sprites
            Q#....  Q#....  .#....  .#....
            ......  ......  Q.....  .Q....
            .....@  .....@  .....@  .....@)",
              &frmDocument::MinePPTick);
}

TEST(MinePP, ShutInTurnsAtEveryCallAndLeavesItsCellUnwritten) {
    for (const auto& [before, below, after] :
         {std::tuple{"Q:R", true, Picture::MovingMinePPDownPic},
          std::tuple{"Q:L", false, Picture::MovingMinePPUpPic},
          std::tuple{"Q:D", true, Picture::MovingMinePPRightPic},
          std::tuple{"Q:U", false, Picture::MovingMinePPLeftPic}}) {
        Scenario scene("###\n#Q#\n###", before);
        if (!below) scene.Board.You = {360, 360, true}; // level on both axes
        scene.Run(&frmDocument::MinePPTick);
        EXPECT_EQ(scene.Board.MovingMinePP.Picture[1], after);
        EXPECT_EQ(scene.AreaAt(2, 2), Kind::Empty);
    }
}

TEST(Hunter, KillsNeighboursAndNeverEntersTheirCell) {
    const std::string films = R"(
        = ahead | sprites dies
            ##   ##
            M@   M@
            ##   ##
        = after a step | dies
            ###   ###
            M.@   .M@
        = with an odd tag | sprites M:x dies
            M@   M@
        = on a diagonal | sprites M:x
            M.   M.
            .@   .@)";
    for (const auto& [mine, routine] :
         {std::pair{'P', &frmDocument::MinePTick}, std::pair{'Q', &frmDocument::MinePPTick}}) {
        std::string own = films;
        std::replace(own.begin(), own.end(), 'M', mine);
        PlayFilms(own, routine);
    }
    Scenario together("@Q .2", "Q:x");
    together.Type("d"); // the mine's cell reads empty
    EXPECT_TRUE(together.NextSprites());
    together.Run(&frmDocument::MinePPTick);
    EXPECT_FALSE(together.Ended) << "its own cell is not looked at";
}

TEST(Hunter, RocksMoveBeforePPAndPPBeforeP) {
    PlayFilms(R"(
        = tick 30 | tick:30 sprites
            .O#   ..#
            Q.#   QO#
            ###   ###
        = tick 60 | tick:60 Q:U
            P.   PQ
            #Q   #.)");
}

} // namespace tumbledeep
