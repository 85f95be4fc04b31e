// The P and PP mines: when they turn, where to, and whom they kill.
#include "support/Scenario.h"

namespace tumbledeep {

TEST(MineP, TurnsOnlyWhenBlocked) {
    PlayFilms(R"(
        = turns down and steps in one call
            P#.   .#.
            ...   P..
            ..@   ..@
        = level with the player it turns up, and blocked there too to the left; then it steps
            #####   #####   #####
            @..P#   @..P#   @.P.#)",
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
    for (const char* turn : {"RD", "LU", "DR", "UL"}) {
        Scenario scene("###\n#Q#\n###", std::string("Q:") + turn[0]);
        if (turn[1] == 'U' || turn[1] == 'L') scene.Board.You = {360, 360, true}; // level
        scene.Run(&frmDocument::MinePPTick);
        EXPECT_EQ(scene.Board.MovingMinePP.Tag[1][0], turn[1]);
        EXPECT_EQ(scene.AreaAt(2, 2), Kind::Empty);
    }
}

TEST(Hunter, KillsNeighboursAndNeverEntersTheirCell) {
    const std::string ahead = R"(
        = ahead | sprites dies
            ##   ##
            M@   M@
            ##   ##)";
    const std::string diagonal = "= on a diagonal | sprites M:x \n M. M. \n .@ .@";
    for (std::string film : {ahead, diagonal}) {
        std::replace(film.begin(), film.end(), 'M', 'P');
        PlayFilms(film, &frmDocument::MinePTick);
        std::replace(film.begin(), film.end(), 'P', 'Q');
        PlayFilms(film, &frmDocument::MinePPTick);
    }
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
