// Gems: gravity without violence.
#include "support/Scenario.h"

namespace tumbledeep {

TEST(GemTick, FallsRollsRestsAndIsTaken) {
    PlayFilms(R"(
        = taken at the turn after the fall
            *   .   .
            .   *   .
            @   @   @
        = no harm to a mine; at rest on the player it is taken
            *#*   .#.   .#.
            .#@   *#@   *#@
            L##   L##   L##
        = rolls off gems, rocks and T mines, rests on all else | draw:R
            .*..*..*..*..*..*..*..*..*.   ..*..*..*.*..*..*..*..*..*.
            .*..O..T..L..R..F..P..:..X.   .*..O..T..L..R..F..P..:..X.
            ###########################   ###########################
        = one try, on the drawn side | draw:LR
            #*.   #*.   #.*
            #O.   #O.   #O.
            ###   ###   ###)",
              &frmDocument::GemTick);
}

TEST(GemTick, FollowsTheRocksOfTheSameTickWithADrawOfItsOwn) {
    PlayFilms(R"(
        = the rock rolls right under the gem, the gem rolls left | tick:6 draw:RL
            ..*   .*.
            .O.   ..O
            .*.   .*.
            ###   ###)");
}

} // namespace tumbledeep
