// The T mine: a rock that goes off where it lands.
#include "support/Scenario.h"

namespace tumbledeep {

TEST(MineT, GoesOffInTheLastFreeCellOfItsFall) {
    PlayFilms(R"(
        = two free cells above the player, who lives for now
            T   .   .
            .   T   .
            .   .   X
            @   @   @
        = next to a lower one
            .T.   ...
            #.#   #X#
            #T#   #T#
            ###   ###
        = rolls off gems, rocks and T mines, rests on all else | draw:R
            .T..T..T..T..T..T..T..T..T..T.   ..T..T..T.T..T..T..T..T..T..T.
            .*..O..T..:..X..@..L..R..F..P.   .*..O..T..:..X..@..L..R..F..P.
            ##############################   ##############################
        = one try, on the drawn side | draw:RL
            .T#   .T#   T.#
            .O.   .O.   .O.
            ###   ###   ###)",
              &frmDocument::MineTTick);
}

TEST(MineT, CellReadsBangOnlyIfTheBangWasAHiddenSprite) {
    Scenario scene(R"(
        #T#...   #.#...   #.#...
        #.#...   #T#...   #X#...
        ###..X   ###..X   ###..X)");
    scene.Run(&frmDocument::MineTTick); // the only Bang is in use, so a new sprite is made
    EXPECT_TRUE(scene.NextArea());
    EXPECT_TRUE(scene.NextSprites());
}

TEST(MineT, BangWaitsForTheNextMultipleOfSix) {
    PlayFilms(R"(
        = two ticks | tick:10
            #T#   #.#   #.#   #.#
            #.#   #X#   #X#   #.#
            #:#   #:#   #:#   #.#)");
}

} // namespace tumbledeep
