// Steps, pushes and pauses, and whether the player is ready for the next key.
#include "formats/LoadMap.h"
#include "support/Film.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tumbledeep {

namespace {

/// A step along a line of cells, drawn from the player's side.
struct Line {
    std::string Before, After;
    std::string Ready;
};

/// Plays each with the first key, and backwards with the second.
void PlayLines(const std::vector<Line>& lines, bool upright, std::string_view keys) {
    for (auto [before, after, ready] : lines) {
        for (const char key : keys) {
            std::string film = "= " + before + " | ready:" + ready + " key:" + key + "\n";
            if (!upright) film += before + " " + after;
            for (std::size_t i = 0; upright && i < before.size(); ++i) {
                film += std::string{before[i], ' ', after[i], '\n'};
            }
            PlayFilms(film);
            std::reverse(before.begin(), before.end());
            std::reverse(after.begin(), after.end());
        }
    }
}

} // namespace

TEST(Player, StepsAndPushes) {
    PlayLines({{"@.", ".@", "no"},
               {"@:", ".@", "no"},
               {"@*", ".@", "no"},
               {"@#", "@#", "yes"},
               {"@X", "@X", "yes"},
               {"@L.", "@L.", "yes"},
               {"@R.", "@R.", "yes"},
               {"@F.", "@F.", "yes"},
               {"@P.", "@P.", "yes"},
               {"@O.", ".@O", "no"},
               {"@T.", ".@T", "no"},
               {"@O:", "@O:", "yes"},
               {"@T*", "@T*", "yes"},
               {"@OT.", "@OT.", "yes"},
               {"@TO.", "@TO.", "yes"},
               {"@OX", "@OX", "yes"},
               {"@^", ".@", "no"}},
              false, "da");
    PlayLines({{"@.", ".@", "no"},
               {"@:", ".@", "yes"},
               {"@*", ".@", "yes"},
               {"@#", "@#", "yes"},
               {"@O.", "@O.", "yes"},
               {"@T.", "@T.", "yes"}},
              true, "sw");
}

TEST(Player, ReadinessWithinATick) {
    PlayFilms(R"(
        = a column that was once dirt is run along | key:www,ss ready:yes
            :   @   .
            :   .   .
            :   .   @
            @   .   .
        = an open one is not | key:ww ready:no
            .   .
            .   @
            @   .
        = one step sideways | key:dd ready:no
            @::   .@:
        = a refused push leaves the next key | key:da ready:no
            .@O#   @.O#
        = arrows: up the dug cell and then left | tick:6 held:UL
            .:   @.
            .@   ..
        = up the open cell alone | tick:6 held:UL
            ..   .@
            .@   ..
        = up the dug cell and back | tick:6 held:UD
            :   .
            @   @
        = a refused first key leaves the next | tick:6 held:UR
            ##   ##
            @.   .@)");
}

TEST(Player, EdgeOfTheGridIsAWall) {
    PlayFilms(R"(
        = nothing goes into column -1 | key:a at:0,1 ready:yes
            O@   O@
        = column 0 is free to push into | key:a at:0,1 ready:no
            .O@   O@.
        = column 301 | key:d at:299,1 ready:yes
            @O   @O
        = the player enters row 0 and no further | key:w,.w at:1,0 ready:yes
            .   @   @
            @   .   .
        = the last column and row | key:ds at:299,300 ready:yes
            *@   *@)");
}

TEST(Player, Quirks) {
    PlayFilms(R"(
        = any key brings back a gem whose cell is overwritten, if the player is ready | a=* a=:? key:p,px,.W
            a@   ?@   ?@   *@
        = a push that finds no rock leaves the cell as it is | key:d a=O? ready:no
            @a.   @?.
        = a hidden mine is not pushed: the rock hits one alone | key:d. tick:6 a=T! a=T ends:dies
            ..O   ...
            ...   ...
            @a.   .@X
        = to the left the cell just left is taken too | key:a a=@ a=:
            .a   @.
        = to the right it is not | key:d a=@ a=:
            a.   ;@
        = up and down end at the first match, hidden or not | key:w a=*! a=* ready:yes
            a   2
            @   .
        = sideways all go | key:d a=*! a=*
            @a   .@)");
    // Between two rows a rock belongs to the nearer one, a T mine to the upper one.
    for (const auto& [kind, tops, left] :
         {std::tuple{"roundrock", "0", 360}, std::tuple{"roundrock", "360", 720},
          std::tuple{"movingmineT", "0", 720}, std::tuple{"movingmineT", "360", 360}}) {
        Board board = LoadMap(std::string("you ") + tops + " 0\n" + kind + " 216 360", 1);
        const Kind what = *KindNamed(kind);
        board.Area.Set({2, 1}, what);
        board.MoveYou("d");
        EXPECT_EQ(board.Pools[what][1].Left, static_cast<float>(left)) << kind << " " << tops;
    }
}

} // namespace tumbledeep
