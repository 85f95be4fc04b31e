// The six kinds of mine: how they walk, turn, aim, fall, and whom they kill.
#include "support/Film.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tumbledeep {

TEST(Mines, LKeepsAWallAtItsLeftAndRAtItsRight) {
    PlayFilms(R"(
        = round a block | L:L heads:D,D,R,R,U,U,L,L
            .L.   L..   ...   ...   ...   ...   ...   ..L   .L.
            .#.   .#.   L#.   .#.   .#.   .#.   .#L   .#.   .#.
            ...   ...   ...   L..   .L.   ..L   ...   ...   ...
        = blocked: the far side is taken without a look | heads:R,D,L,L
            ###   ###   ###   ###   ###
            L.#   .L#   .L#   .L#   L.#
            ###   ###   ###   ###   ###
        = blocked: the hand side if it is free | heads:U,U
            #.##   #.##   #L##
            #L:#   #L:#   #.:#
            ####   ####   ####
        = shut in | heads:D,L,U,R
            ###   ###   ###   ###   ###
            #L#   #L#   #L#   #L#   #L#
            ###   ###   ###   ###   ###
        = the rear mine of a pair first: it is blocked | a=L b=L heads:DR,RR
            #####   #####   #####
            ab..#   L.L.#   L..L#
            #####   #####   #####
        = a tag that is no heading never moves, and kills | L:u heads:- ends:dies
            L   L
            @   @
        = after a step, and the next mine has no turn | heads:RR ends:dies
            ####   ####
            L.@#   .L@#
            ####   ####
            L..#   L..#
        = not on a diagonal
            #L#   #L#
            ##@   ##@)",
              &Board::MineLTick);
    PlayFilms(R"(
        = round a block | heads:D,D,L,L,U,U,R,R
            .R.   ..R   ...   ...   ...   ...   ...   R..   .R.
            .#.   .#.   .#R   .#.   .#.   .#.   R#.   .#.   .#.
            ...   ...   ...   ..R   .R.   R..   ...   ...   ...
        = shut in | heads:U,L,D,R
            ###   ###   ###   ###   ###
            #R#   #R#   #R#   #R#   #R#
            ###   ###   ###   ###   ###)",
              &Board::MineRTick);
}

TEST(Mines, FLRunsStraightAndKillsAheadAlone) {
    PlayFilms(R"(
        = a run bends down without a pause, a fall bends right with one | heads:R,D,R,R
            F.#   .F#   ..#   ..#   ..#
            ...   ...   .F.   .F.   ..F
            .:.   .:.   .:.   .:.   .:.
        = up when down is not free, in the same call | heads:U
            .#   F#
            F#   .#
            ##   ##
        = left prefers down as right does | F:L heads:D
            #F   #.
            #.   #F
        = up prefers left, down prefers right, and both lose the call | a=F:U b=F:D heads:LR,LR
            ####.b.   ####.F.   ####..F
            ##.a.##   ##.F.##   ##F..##
        = shut in it comes to rest on R | a=F:R b=F:U c=F:L d=F:D heads:RRRL,RRRR
            #########   #########   #########
            #a#b#c#d#   #F#F#F#F#   #F#F#F#F#
            #########   #########   #########
        = a tag that is no heading neither moves nor kills | F:r heads:-
            F@   F@
        = ahead after a step, not touching | F:L ends:dies
            @..F   @.F.   @F..
        = the player blocks it, it turns and looks back | F:U ends:dies heads:R
            #@#   #@#
            #F#   #F#
        = running right it kills untold, and ends the call | heads:UR ends:untold
            F@   F@
            F.   F.
        = the player beside it lives
            .#   .#
            #F#  #F#
            .@   .@)",
              &Board::MineFLTick);
}

TEST(Mines, TGoesOffInTheLastFreeCellOfItsFall) {
    PlayFilms(R"(
        = above the player, who lives for now
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
            ###   ###   ###
        = only a Bang that was a hidden sprite marks the cell; the next one leaves the mine's name
            #T#T#   #.#.#
            #.#.#   #X#?#
            #####   #####)",
              &Board::MineTTick);
}

TEST(Mines, PAndPPHunt) {
    PlayFilms(R"(
        = P turns when blocked, and steps in the same call | heads:D,D
            P#.   .#.   .#.
            ...   P..   ...
            ..@   ..@   P.@
        = on the tie up, blocked there too to the left; then it steps | heads:L,L
            #####   #####   #####
            @..P#   @..P#   @.P.#
        = it runs past the player unless blocked, and kills next to it | heads:R ends:dies
            P..   .P.
            .@.   .@.)",
              &Board::MinePTick);
    PlayFilms(R"(
        = PP aims at every turn: to the lower right, then up on the tie | heads:D,R,D,R,U,R,D
            Q......  .Q.....  .......  .......  .......  .......  .......  .......
            .......  .......  .Q.....  ..Q....  .......  .......  ...Q...  ....Q..
            ......@  ......@  ......@  ......@  ..Q...@  ...Q..@  ......@  ......@
        = a blocked way costs the turn, and its cell still reads empty | heads:D,R,D
            Q#....  q#....  .#....  .#....
            ......  ......  Q.....  .Q....
            .....@  .....@  .....@  .....@
        = to the left on the tie | Q:U heads:L
            #
            Q
            .
            @)",
              &Board::MinePPTick);
    for (const char mine : std::string("PQ")) {
        std::string films = R"(
        = ahead: it turns, and kills before the next mine's turn | a=M b=M ends:dies
            ##   ##
            a@   0@
            ..   ..
            b.   0.
        = on a diagonal, with a tag that is no heading | M:x heads:-
            M.   0.
            .@   .@
        = with such a tag it still kills | M:x ends:dies
            M@   0@)";
        std::replace(films.begin(), films.end(), '0', mine == 'P' ? 'P' : 'q');
        std::replace(films.begin(), films.end(), 'M', mine);
        PlayFilms(films, mine == 'P' ? &Board::MinePTick : &Board::MinePPTick);
    }
}

} // namespace tumbledeep
