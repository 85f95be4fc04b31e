// The clock: its cycle, who is due when, who comes first on a tick, and what stops it.
#include "formats/LoadMap.h"
#include "support/Film.h"

#include <gtest/gtest.h>

#include <map>

namespace tumbledeep {

TEST(Clock, CycleOf301TicksServesEachKindAtItsMultiples) {
    Board board = LoadMap("you 0 0\ngem1type 0 3600\nroundrock 0 7200\nmovingmineT 0 10800\n"
                          "movingmineL 36000 36000 R\nmovingmineR 36000 72000 R\n"
                          "movingmineFL 72000 0 R\nmovingmineP 90000 0 R\n"
                          "movingminePP 36000 90000 R\nfactory 18000 18000 ?",
                          1);
    HeldKeys held;
    held.Set(Heading::Right, true);
    const std::map<Kind, int> multiples{{Kind::Gem1Type, 6},      {Kind::RoundRock, 6},
                                        {Kind::MovingMineT, 10},  {Kind::MovingMineL, 10},
                                        {Kind::MovingMineR, 10},  {Kind::MovingMineFL, 10},
                                        {Kind::MovingMinePP, 30}, {Kind::MovingMineP, 20}};
    for (int tick = 1; tick <= 301; ++tick) {
        const Board before = board;
        EXPECT_EQ(board.Tick(held), Outcome::Running);
        ASSERT_EQ(board.TickCount, tick % 301);
        for (const auto& [kind, multiple] : multiples) {
            EXPECT_EQ(board.Pools[kind] != before.Pools[kind], tick % 301 % multiple == 0)
                << KindText(kind) << " at " << tick;
        }
        EXPECT_EQ(board.FactoryCount != before.FactoryCount, tick % 301 % 10 == 0);
        EXPECT_EQ(board.You != before.You, tick % 301 % 6 == 0);
    }
}

TEST(Clock, OrderOnATick) {
    PlayFilms(R"(
        = a factory's mine moves at once | tick:10 ^:0:movingmineL
            ^   ^
            .   L
        = L before FL: one gap, and the first takes it | tick:10 F:L
            #####   #####
            #L.F#   #.LF#
            #####   #####
        = FL before R | tick:10 R:L
            #####   #####
            #F.R#   #.FR#
            #####   #####
        = R before T | tick:10
            ##T#   ##T#
            #R.#   #.R#
            ####   ####
        = mines, then rocks, then gems | tick:30
            #*#.   #.#.
            #O##   #*##
            #L.#   #OL#
            ####   ####
        = T before rocks: the rock falls after it and hits, and the Bang spreads at once | tick:30
            #O#   #.#
            #T#   #.#
            #.#   #.#
            #.#   #.#
            #:#   #:#
        = gems before Bangs | tick:6
            *.   *.
            :X   ..
            ##   ##
        = Bangs before arrow keys | tick:6 held:R
            @OX   .@.
            ###   ###
        = arrow keys before PP | tick:30 held:R
            Q.@.   .Q.@
        = rocks before PP | tick:30
            .O#   ..#
            Q.#   qO#
            ###   ###
        = PP before P | tick:60 Q:L
            #####   #####
            #P.Q#   #PQ.#
            #####   #####)");
}

TEST(Clock, PauseAndTheEnd) {
    PlayFilms(R"(
        = p stops it, keys are lost until it runs again and a tick has passed | key:p,d......,pd,.dd
            @...O   @...O   @...O   @...O   .@..O
        = nothing of a tick runs after a death, and the player is not ready
            | tick:6 key:d. ends:dies ready:no
            .O.*   ...*
            ....   .O..
            @...   .@..
        = nor after a win | tick:10 key:d. ends:wins ready:no
            @*.L.   .@.L.)");
}

} // namespace tumbledeep
