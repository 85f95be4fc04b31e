// The clock: its cycle, who is due when, who comes first on a tick, and what stops it. What each
// routine does is in the other films; Film.h tells how they are read.
#include "formats/LoadMap.h"
#include "support/Film.h"

#include <map>

namespace tumbledeep {

TEST(Clock, CycleOf301TicksServesEachKindAtItsMultiples) {
    const std::map<Kind, int> multiples{{Kind::Gem1Type, 6},      {Kind::RoundRock, 6},
                                        {Kind::MovingMineT, 10},  {Kind::MovingMineL, 10},
                                        {Kind::MovingMineR, 10},  {Kind::MovingMineFL, 10},
                                        {Kind::MovingMinePP, 30}, {Kind::MovingMineP, 20}};
    Board board = LoadMap("you 0 0\ngem1type 0 36000\nfactory 18000 18000 ?", 1);
    for (const auto& [kind, multiple] : multiples) {
        board.SpawnObject(kind, 7200.0F * static_cast<float>(kind), 3600, Heading::Down);
    }
    HeldKeys held;
    held.Set(Heading::Right, true);
    for (int tick = 1; tick <= 301; ++tick) {
        board.GemsShown.reset();
        const Board before = board;
        board.Tick(held);
        ASSERT_EQ(board.TickCount, tick % 301);
        for (const auto& [kind, multiple] : multiples) {
            EXPECT_EQ(board.Pools[kind] != before.Pools[kind], tick % 301 % multiple == 0)
                << KindText(kind) << " at " << tick;
        }
        EXPECT_EQ(board.FactoryCount != before.FactoryCount, tick % 301 % 10 == 0);
        EXPECT_EQ(board.You != before.You, tick % 301 % 6 == 0);
        EXPECT_EQ(board.GemsShown.has_value(), tick % 301 % 30 == 0);
    }
}

TEST(Clock, OrderOnATick) {
    PlayFilms(R"(
        = who is first takes room: L FL; FL R; R T; L rock gem; T rock Bang; gem Bang; rock PP; PP P
            | tick:60 ^:0:movingmineL a=F:L b=R:L c=Q:L
            ###########T##*##O#*.#.O#####^#   ###########T##.##.#*.#..#####^#
            #L.a##F.b#R.##O##T#:X#Q.#P.c#.#   #.LF##.FR#.R##*##.#..#qO#PQ.#L#
            ##############L.#.#############   ##############OL#.#############
            #################.#############   #################.#############
            ###############################   ###############################
        = Bangs, then arrow keys, then PP | tick:30 held:R
            Q.@OX   .Q.@.
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
        = nor after a win | tick:10 key:d. ends:wins ready:no ^:0:dirt
            @*.L.^   .@.L.^
        = a gem that is taken on a tick counts at the next multiple of ten | tick:30
            *   .
            @   @
        = hidden sprites have no turn | tick:0
            | a=O! b=*! c=T! d=L! e=R! f=F! g=P! h=Q! i=X! j=^!:0:dirt
            a.b.c.d.e.f.g.h.i:.j*   .................:..*
            ....................#   ....................#)");
}

} // namespace tumbledeep
