// The six kinds of mine: how they walk, turn, aim, fall, and whom they kill. Their Bangs are in
// BlastTest.cpp; Film.h tells how films are read.
#include "support/Film.h"

namespace tumbledeep {

TEST(Mines, LAndRFollowWalls) {
    PlayFilms(R"(
        = L keeps a wall at its left hand | L:L heads:D,D,R,R,U,U,L,L
            .L.   L..   ...   ...   ...   ...   ...   ..L   .L.
            .#.   .#.   L#.   .#.   .#.   .#.   .#L   .#.   .#.
            ...   ...   ...   L..   .L.   ..L   ...   ...   ...
        = blocked: to the hand side if free, else to the far side; the rear of two first
            | a=L b=L c=L d=L e=L heads:RUDDR,DULRR
            #####.#@########   #####.#@########   #####L#@########
            #a.##b:##c#de..#   #.L##L:##L#L.L.#   #.L##.:##L#L..L#
            ################   ################   ################
        = it kills its neighbours, before the next mine's turn; other tags only stand still
            | a=L b=L:u c=L heads:R-R ends:dies
            #####   #####
            a.@#b   .L@#L
            #####   #####
            c..##   L..##
        = with such a tag too | L:u heads:- ends:dies
            L@   L@)",
              &Board::MineLTick);
    PlayFilms(R"(
        = R keeps it at its right | b=R a=R heads:DU,DL,LD,LR,UU,UL,RD,RR
            .b.###   ..R###   ...###   ...###   ...###   ...###   ...###   R..###   .R.###
            .#.#a#   .#.#R#   .#R#R#   .#.#R#   .#.#R#   .#.#R#   R#.#R#   .#.#R#   .#.#R#
            ...###   ...###   ...###   ..R###   .R.###   R..###   ...###   ...###   ...###)",
              &Board::MineRTick);
}

TEST(Mines, FLRunsStraightAndKillsAheadAlone) {
    PlayFilms(R"(
        = it bends down or up in one call; up it prefers left, down right, and loses the call
            | F:R b=F:L c=F:U d=F:D e=F:D f=F:U heads:DUDLRLR
            #.######.#############   #.######.#############   #.######.#############
            #F##.###b#############   #.##F###.#############   #.##F###.#############
            #..#F###.#.c.#.d.#e#f#   #F.#.###F#.F.#.F.#F#F#   #F.#.###F#F..#..F#F#F#
            #:.###################   #:.###################   #:.###################
        = ahead after a step | F:L ends:dies
            @.F   @F.
        = it kills running right: untold, and before the next mine's turn | heads:UR ends:untold
            F@   F@
            F.   F.
        = the player beside it lives, and before one whose tag is no heading | b=F:l heads:-U
            .##   F##
            F#.   .#.
            @b.   @F.)",
              &Board::MineFLTick);
}

TEST(Mines, TGoesOffInTheLastFreeCellOfItsFall) {
    PlayFilms(R"(
        = near the player, who lives for now, or a lower one; only a Bang reused marks its cell
            #T#T#   #.#.#   #.#.#
            #.#.#   #T#X#   #.#X#
            #.#T#   #.#T#   #?#T#
            #@###   #@###   #@###
        = rolls off gems, rocks and T mines, rests on all else | draw:L
            .T..T..T..T..T..T..T..T..T..T.   T..T..T...T..T..T..T..T..T..T.
            .*..O..T..:..X..@..L..R..F..P.   .*..O..T..:..X..@..L..R..F..P.
            ##############################   ##############################)",
              &Board::MineTTick);
}

TEST(Mines, PAndPPHunt) {
    PlayFilms(R"(
        = P turns when blocked, and steps in the same call; level it turns up, then left
            | P:R heads:DL,DL ends:dies
            P#.###   .#.###   .#.###
            ...#P#   P..#P#   ...#P#
            .@.###   .@.###   P@.###
        = any tag kills, before the next mine's turn | a=P:x b=P heads:-R ends:dies
            a@.b.   P@.P.)",
              &Board::MinePTick);
    PlayFilms(R"(
        = PP aims at every turn: to the lower right, then up on the tie | heads:D,R,D,R,U,R,D
            Q......  .Q.....  .......  .......  .......  .......  .......  .......
            .......  .......  .Q.....  ..Q....  .......  .......  ...Q...  ....Q..
            ......@  ......@  ......@  ......@  ..Q...@  ...Q..@  ......@  ......@
        = a blocked way costs the turn, its first cell reads empty; it kills only after its move
            | a=Q:D b=Q:L heads:LUD,DRR
            Q#...#a   q#...#q   .#...#q
            .....##   .....##   Q...Q##
            .....b@   ....Q.@   ......@
        = any tag kills, before the next mine's turn | a=Q:x b=Q heads:-R ends:dies
            a@.b.   q@.q.)",
              &Board::MinePPTick);
}

} // namespace tumbledeep
