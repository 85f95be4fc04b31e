// Rocks and gems: what they fall past, roll off, hit and are taken by. Falling T mines are in
// MinesTest.cpp; Film.h tells how films are read.
#include "support/Film.h"

namespace tumbledeep {

TEST(Gravity, Rocks) {
    PlayFilms(R"(
        = past a factory onto a gem; the lower of two first: both fall; the upper first: a gap opens
            | a=O b=O d=O c=O
            #O#b#d#   #.#.#O#   #.#.#.#
            #^#a#c#   #O#O#.#   #^#O#O#
            #.#.#.#   #.#O#O#   #O#O#O#
            #*#####   #*#####   #*#####
        = all that roll go to one side, off rocks and gems alone | draw:R
            .O..O..O..O..O..O..O..O..O..O..O.   ..O..O.O..O..O..O..O..O..O..O..O.
            .O..*..:..#..T..L..R..F..P..X..@.   .O..*..:..#..T..L..R..F..P..X..@.
            ################################.   ################################.
        = one try, on the drawn side, if there and below that is room | draw:LR
            #O.#O.#O:   #O.#O.#O:   #.O#O.#O:
            #*.#*:#*.   #*.#*:#*.   #*.#*:#*.
            #########   #########   #########
        = a fall hits mines, a hidden one there too, and the player; the next rock has no turn
            | a=L! a=L ends:dies
            #O#O#O#O#O#O#O#O#   #.#.#.#.#.#.#.#O#
            #.#.#.#.#.#.#.#.#   #.#.#.#.#.#.#O#.#
            #T#L#R#F#P#a#@#.#   #X#X#X#X#X#2#@#.#)",
              &Board::RockTick);
}

TEST(Gravity, Gems) {
    PlayFilms(R"(
        = they hurt nobody, and are taken at the turn after the fall
            #*#*#   #.#.#   #.#.#
            #.#.#   #*#*#   #.#*#
            #@#L#   #@#L#   #@#L#
        = they roll off gems, rocks and T mines | draw:R
            .*..*..*..*..*..*..*..*..*.   ..*..*..*.*..*..*..*..*..*.
            .*..O..T..L..R..F..P..:..X.   .*..O..T..L..R..F..P..:..X.
            ###########################   ###########################)",
              &Board::GemTick);
    PlayFilms(R"(
        = a draw of their own: the rock rolls right under the gem, the gem rolls left
            | tick:6 draw:RL
            ..*   .*.
            .O.   ..O
            .*.   .*.
            ###   ###)");
}

} // namespace tumbledeep
