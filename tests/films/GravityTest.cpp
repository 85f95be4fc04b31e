// Rocks and gems: what they fall past, roll off, hit and are taken by.
#include "support/Film.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tumbledeep {

TEST(Gravity, RocksFallRollAndRest) {
    PlayFilms(R"(
        = a fall past a factory onto a gem
            #O#O#   #.#.#   #.#.#
            #^#.#   #O#O#   #^#O#
            #.#*#   #.#*#   #O#*#
            #####   #####   #####
        = all that roll go to one side, off rocks and gems alone | draw:R
            .O..O..O..O..O..O..O..O..O..O.   ..O..O.O..O..O..O..O..O..O..O.
            .O..*..:..#..T..L..R..F..P..X.   .O..*..:..#..T..L..R..F..P..X.
            ##############################   ##############################
        = one try, on the drawn side, and the cell below the target has to be free too | draw:LR
            #O.#O.   #O.#O.   #.O#O.
            #*.#*:   #*.#*:   #*.#*:
            ######   ######   ######
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
              &Board::RockTick);
}

TEST(Gravity, RocksHurtOnlyAtTheEndOfAFall) {
    PlayFilms(R"(
        = above the player, before the next rock's turn | ends:dies
            #O#O#   #.#O#
            #.#.#   #O#.#
            #@#.#   #@#.#
        = at rest on the player
            #O#   #O#
            #@#   #@#
        = a hidden mine in the cell below gives a Bang of its own | a=L! a=L
            #O#   #.#
            #.#   #.#
            #a#   #2#)",
              &Board::RockTick);
    for (const char mine : std::string("TLRFP")) {
        std::string film = R"(
        = a mine below
            #O#.O.   #.#.O.
            #.#.M.   #.#.M.
            #M####   #X####)";
        std::replace(film.begin(), film.end(), 'M', mine);
        PlayFilms(film, &Board::RockTick);
    }
}

TEST(Gravity, GemsFallRollRestAndAreTaken) {
    PlayFilms(R"(
        = taken at the turn after the fall, or where it rests
            *##   .##   .##
            .#*   *#.   .#.
            @#.   @#*   @#*
            ###   ###   ###
        = the player takes what rests above; mines are not hurt
            *.*   ..*
            @.L   @.L
        = rolls off gems, rocks and T mines, rests on all else | draw:R
            .*..*..*..*..*..*..*..*..*.   ..*..*..*.*..*..*..*..*..*.
            .*..O..T..L..R..F..P..:..X.   .*..O..T..L..R..F..P..:..X.
            ###########################   ###########################
        = one try, on the drawn side | draw:LR
            #*.   #*.   #.*
            #O.   #O.   #O.
            ###   ###   ###)",
              &Board::GemTick);
    PlayFilms(R"(
        = a draw of its own: the rock rolls right under the gem, the gem rolls left | tick:6 draw:RL
            ..*   .*.
            .O.   ..O
            .*.   .*.
            ###   ###)");
}

} // namespace tumbledeep
