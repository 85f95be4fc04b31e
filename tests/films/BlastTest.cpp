// Blasts: what goes, what stays, in which order, and how a chain takes its time.
#include "formats/LoadMap.h"
#include "support/Film.h"

#include <gtest/gtest.h>

namespace tumbledeep {

TEST(Blast, NineCells) {
    PlayFilms(R"(
        = mines become Bangs of the same power; walls, gems, factories and Bangs stay
            .:...   .:...   .:...
            .:O*.   ...*.   ...*.
            .#X^L   .#.^L   .#.^L
            .T:O.   .X...   .....
            ..OO.   ..OO.   ...O.
        = a rock carries no blast on
            XOL   ..L
        = a Bang does nothing to another, and the player is out of reach
            :XX.@   ....@
        = sprites that the grid alone tells of are passed over | a=:? b=O? c=T? d=L?
            aXb   ?.?
            c.d   ?.?
        = two sprites in one cell both go | a=: a=:
            aX   ..
        = its own cell: a mine there becomes a Bang that the grid does not know | a=L a=x
            .a:   .x.   ...
        = the player there dies | a=@ a=x ends:dies
            a   2
        = the player ends it at once: the cells before are taken, those behind and the Bang stay
            | ends:dies
            :::   :.:
            :X@   :X@
            :::   :.:)",
              &Board::BangTick);
}

TEST(Blast, OrderOfTheCells) {
    Board board = LoadMap("movingmineL 0 0 R\nmovingmineL 0 360 R\nmovingmineL 0 720 R\n"
                          "movingmineL 360 0 R\nmovingmineL 360 720 R\n"
                          "movingmineL 720 0 R\nmovingmineL 720 360 R\nmovingmineL 720 720 R",
                          1);
    board.SpawnObject(Kind::Bang, 360, 360, Heading::Down);
    board.BangTick();
    std::string order; // each mine gives the pool its next Bang
    for (const Sprite& bang : board.Pools[Kind::Bang]) {
        const Cell cell = CellOf(bang);
        order += std::to_string(cell.Col) + std::to_string(cell.Row) + " ";
    }
    EXPECT_EQ(order, "22 23 21 32 12 33 31 13 11 ");
}

TEST(Blast, ChainsTakeTheirTime) {
    PlayFilms(R"(
        = a Bang in a new sprite, or in one already passed, waits
            XLRFP   .XRFP   ..XFP   ....X   .....
        = one in a hidden sprite further on is served in the same call | X=X h=X!
            XLRhh   ..X..   .....)",
              &Board::BangTick);
}

} // namespace tumbledeep
