// Blasts: what goes, what stays, and how a chain takes its time.
#include "support/Scenario.h"

namespace tumbledeep {

constexpr auto BangTick = &frmDocument::BangTick;

TEST(BangTick, TakesDirtRocksAndMinesOfItsNineCells) {
    PlayFilms(R"(
        = a mine becomes a Bang of the same power
            .:...   .:...   .:...
            .:O*.   ...*.   ...*.
            .#X^L   .#.^L   .#.^L
            .T:O.   .X...   .....
            ..OO.   ..OO.   ...O.
        = a rock carries no blast on
            XOL   ..L   ..L
        = a Bang does nothing to another
            :XX:   ....
        = the player on a diagonal | dies
            @.   @.
            .X   .X
        = the player two cells away
            @.X   @..
        = a growing pool: a Bang in a new sprite, or in one already passed, waits
            XLRFP   .XRFP   ..XFP   ....X   .....)",
              BangTick);
}

TEST(BangTick, BangInAHiddenSpriteAheadIsServedInTheSamePass) {
    Scenario scene("XLR ..X ...");
    for (int i = 0; i < 5; ++i) scene.Board.Bang.Add();
    scene.Run(BangTick);
    EXPECT_TRUE(scene.Next());
    scene.Run(BangTick);
    EXPECT_TRUE(scene.Next());
    EXPECT_EQ(scene.Board.Bang.Count(), 6);
}

} // namespace tumbledeep
