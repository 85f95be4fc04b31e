// Rocks: what they fall past, roll off and set off, and when they kill.
#include "support/Scenario.h"

namespace tumbledeep {

TEST(RockTick, FallsRollsAndRests) {
    PlayFilms(R"(
        = a fall past a factory onto a gem
            #O#O#   #.#.#   #.#.#
            #^#.#   #O#O#   #^#O#
            #.#*#   #.#*#   #O#*#
            #####   #####   #####
        = all that roll go to one side | draw:R
            .O...O.   ..O...O
            .O...*.   .O...*.
            #######   #######
        = no roll off dirt, walls, mines and Bangs
            .O..O..O..O..O..O..O..O.   .O..O..O..O..O..O..O..O.
            .:..#..T..L..R..F..P..X.   .:..#..T..L..R..F..P..X.
        = one try, on the drawn side, and the cell below the target has to be free too | draw:LR
            #O.#O.   #O.#O.   #.O#O.
            #*.#*:   #*.#*:   #*.#*:
            ######   ######   ######)",
              &frmDocument::RockTick);
}

TEST(RockTick, PoolOrderDecidesWhoMovesFirst) {
    PlayFilms(R"(
        = the lower rock first: both fall | a=O b=O
            #b#   #.#
            #a#   #O#
            #.#   #O#
            ###   ###
        = the upper rock first: a gap opens | a=O b=O
            #a#   #O#   #.#
            #b#   #.#   #O#
            #.#   #O#   #O#
            ###   ###   ###)",
              &frmDocument::RockTick);
}

TEST(RockTick, HarmsOnlyAtTheEndOfAFall) {
    PlayFilms(R"(
        = above the player | dies
            #O#   #.#
            #.#   #O#
            #@#   #@#
        = resting on the player
            #O#   #O#
            #@#   #@#)",
              &frmDocument::RockTick);
    for (const char mine : std::string("TLRFP")) {
        std::string film = R"(
        = a mine below
            #O#.O.   #.#.O.
            #.#.M.   #.#.M.
            #M####   #X####
            ######   ######)";
        std::replace(film.begin(), film.end(), 'M', mine);
        PlayFilms(film, &frmDocument::RockTick);
    }
}

TEST(RockTick, HiddenMineInTheCellBelowGivesABangOfItsOwn) {
    Scenario scene(R"(
        #O#   #.#   #.#
        #.#   #.#   #.#
        #L#   #X#   #2#)");
    const PoolSprite ghost = scene.Board.MovingMineL.Add();
    ghost.Left = 360;
    ghost.Top = 720;
    scene.Run(&frmDocument::RockTick);
    EXPECT_TRUE(scene.NextArea());
    EXPECT_TRUE(scene.NextSprites());
}

TEST(RockTick, FallsWhenItsSupportHasLeftAndSetsOffItsBlastInTheSameTick) {
    PlayFilms(R"(
        = the player leaves | key:d,.....,.
            #O#.   #O#.   #O#.   #.#.
            #@..   #.@.   #.@.   #O@.
            ####   ####   ####   ####
        = a mine leaves: its group comes before the rocks' | tick:30
            #O...   #....
            #L...   #OL..
            #####   #####
        = hit and blast | tick:6
            #O#   #.#
            #.#   #.#
            :L:   ...
            ###   ###)");
}

} // namespace tumbledeep
