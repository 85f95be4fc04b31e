// Blasts: what goes, what stays, in which order, and how a chain takes its time. What makes a Bang
// is in GravityTest.cpp and MinesTest.cpp; Film.h tells how films are read.
#include "formats/LoadMap.h"
#include "support/Film.h"

namespace tumbledeep {

TEST(Blast, NineCells) {
    PlayFilms(R"(
        = mines become Bangs of the same power; walls, gems, factories and Bangs stay
            .:...   .:...   .:...
            .:O*.   ...*.   ...*.
            .#X^L   .#.^L   .#.^L
            .T:O.   .X...   .....
            ..OO.   ..OO.   ...O.
        = none beyond a rock, all of one cell, no other Bang, the player out of reach | a=: a=:
            XOL#aX#:XX.@   ..L#..#....@
        = sprites that the grid alone tells of are passed over | a=:? b=O? c=T? d=L?
            aXb   ?.?
            c.d   ?.?
        = its own cell: a mine there becomes a Bang that the grid does not know | a=L a=x
            .a:   .x.   ...
        = the player there dies | a=@ a=x ends:dies
            a   2
        = the player ends it at once: the cells before are taken, those behind and the Bang stay
            | ends:dies
            :::   :.:
            :X@   :X@
            :::   :.:
        = a Bang in a new sprite, or in one already passed, waits
            XLRFP   .XRFP   ..XFP   ....X   .....
        = one in a hidden sprite further on is served in the same call | X=X h=X!
            XLRhh   ..X..   .....)",
              &Board::BangTick);
}

TEST(Blast, OrderOfTheCells) {
    std::string mines;
    for (const int i : {0, 1, 2, 3, 5, 6, 7, 8}) {
        mines +=
            "movingmineT " + std::to_string(i / 3 * 360) + " " + std::to_string(i % 3 * 360) + "\n";
    }
    Board board = LoadMap(mines, 1);
    board.SpawnObject(Kind::Bang, 360, 360, Heading::Down);
    board.BangTick();
    std::string order; // each mine gives the pool its next Bang
    for (const Sprite& bang : board.Pools[Kind::Bang]) {
        order += std::to_string(CellOf(bang).Col()) + std::to_string(CellOf(bang).Row()) + " ";
    }
    EXPECT_EQ(order, "22 23 21 32 12 33 31 13 11 ");
}

} // namespace tumbledeep
