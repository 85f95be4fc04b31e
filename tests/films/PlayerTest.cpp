// Steps, pushes and keys of the player, and whether the player is ready for the next key. Pauses
// are in ClockTest.cpp; Film.h tells how films are read.
#include "formats/LoadMap.h"
#include "support/Film.h"

#include <algorithm>
#include <sstream>

namespace tumbledeep {

namespace {

/// Plays steps along a line of cells, "before after" from the player's side: with the first key,
/// and backwards with the second. Only steps up and down onto something leave the player ready.
void PlaySteps(const std::string& steps, bool upright, std::string_view keys) {
    std::istringstream words(steps);
    for (std::string before, after; words >> before >> after;) {
        const bool ready = before == after || (upright && before != "@.");
        for (const char key : keys) {
            std::string film = ready ? "= | ready:yes key:" : "= | ready:no key:";
            film += {key, '\n'};
            if (!upright) film.append(before).append(" ").append(after);
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
    PlaySteps("@.  .@   @:  .@   @*  .@   @#  @#   @X  @X   @^  .@   @L. @L.  @R. @R.  @F. @F. "
              "@P. @P.  @O. .@O  @T. .@T  @O: @O:  @T* @T*  @OT. @OT.  @TO. @TO.  @OX @OX",
              false, "da");
    PlaySteps("@. .@  @: .@  @* .@  @# @#  @O. @O.  @T. @T.", true, "sw");
    PlayFilms(R"(
        = a column that was once dirt is run along | key:www,ss
            :   @   .
            :   .   .
            :   .   @
            @   .   .
        = arrows are read up, down, left, right; the last finds the player not ready
            | tick:6 held:RLDU a=@ a=:!
            .:.   ...
            .a.   @..
            :#.   :#.)");
}

TEST(Player, EdgesAndQuirks) {
    PlayFilms(R"(
        = nothing goes into column -1 | key:a at:0,1 ready:yes
            O@   O@
        = the player enters row 0 and no further | key:w,.w at:1,0 ready:yes
            .   @   @
            @   .   .
        = any key brings back a gem whose cell is overwritten, if the player is ready
            | a=* a=:? key:p,px,.W ready:yes
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
    // Between two columns, pushed from one into the same, it leaves its cell free.
    Board board = LoadMap("you 0 720\nroundrock 0 540", 1);
    board.MoveYou("a");
    EXPECT_EQ(board.You.Left, 360);
}

} // namespace tumbledeep
