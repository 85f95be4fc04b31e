// Parts of a tick on mixed maps: a pass, which is one call of every routine of what moves, and the
// search for the sprites in one place. Maps of one kind are TickBench.cpp's.
#include "Boards.h"
#include "Counters.h"
#include "Pattern.h"

#include "base/Random.h"
#include "formats/LoadMap.h"

#include <benchmark/benchmark.h>

#include <string_view>
#include <vector>

namespace tumbledeep {

namespace {

constexpr int Cycle = 301; // ticks

/// Of 100 cells, in the letters of Pattern.h. A third of what lies in a common map moves; in a
/// crowded one nearly all does, and a third of it are mines.
constexpr std::string_view Common = ".................................."
                                    "################################"
                                    "********"
                                    "OOOOOOOOOOOOOO"
                                    "TTLLRRFFPPQQ";
constexpr std::string_view Crowded = "................"
                                     "############"
                                     "******************"
                                     "OOOOOOOOOOOOOOOOOO"
                                     "TTTTTTLLLLLLRRRRRRFFFFFFPPPPPPQQQQQQ";

/// A map each of whose cells within the walls holds something, mines with any heading.
std::string MixedMap(int width, int height, std::string_view mixture) {
    Random random;
    random.Seed(1);
    const auto below = [&random](std::size_t limit) {
        return static_cast<std::size_t>(random.Rnd() * static_cast<float>(limit));
    };
    return MapOf(width, height, [&](int, int) -> Object {
        const Kind kind = KindOf(mixture[below(mixture.size())]);
        const bool headed = RowOf(kind).Tag == TagUse::Heading;
        return {std::string(KindText(kind)),
                headed ? std::string(HeadingLetters[below(HeadingLetters.size())]) : ""};
    });
}

/// The board of width and height by the benchmark's arguments. After a first cycle of the clock it
/// has nearly come to rest, and every pass is like the next.
Board Settled(const benchmark::State& state, std::string_view mixture) {
    Board board = LoadMap(
        MixedMap(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), mixture) +
            Endless,
        1);
    for (int tick = 0; tick < Cycle; ++tick) board.Tick({});
    return board;
}

void OnePass(Board& board) {
    board.MineLTick();
    board.MineFLTick();
    board.MineRTick();
    board.MineTTick();
    board.RockTick();
    board.GemTick();
    board.BangTick();
    board.MinePPTick();
    board.MinePTick();
    board.FactoryTick();
    board.CheckGameEnd();
}

void Pass(benchmark::State& state, std::string_view mixture) {
    Board board = Settled(state, mixture);
    for ([[maybe_unused]] auto pass : state) OnePass(board);
}

void MixedTicks(benchmark::State& state, std::string_view mixture) {
    Board board = Settled(state, mixture);
    for ([[maybe_unused]] auto cycle : state) {
        for (int tick = 0; tick < Cycle; ++tick) board.Tick({});
    }
    CountEach(state, "per_tick", static_cast<double>(state.iterations()) * Cycle);
}

void SpritesOfACell(benchmark::State& state) {
    Board board = BoardOf({.Picture = {"P"}, .Rows = RowsOfAPool});
    Pool& mines = board.Pools[Kind::MovingMineP];
    Random random;
    random.Seed(1);
    std::vector<Sprite> wanted(1024);
    for (Sprite& sprite : wanted) {
        sprite = mines[1 + static_cast<int>(random.Rnd() * static_cast<float>(mines.Count() - 1))];
    }
    std::size_t next = 0;
    for ([[maybe_unused]] auto search : state) {
        const Sprite& sprite = wanted[next++ % wanted.size()];
        benchmark::DoNotOptimize(mines.VisibleAt(sprite.Left, sprite.Top));
    }
}

BENCHMARK_CAPTURE(Pass, Common, Common)
    ->Args({40, 22})
    ->Args({301, 301})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Pass, Crowded, Crowded)
    ->Args({40, 22})
    ->Args({301, 301})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MixedTicks, Common, Common)
    ->Args({40, 22})
    ->Args({301, 301})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MixedTicks, Crowded, Crowded)
    ->Args({40, 22})
    ->Args({301, 301})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(SpritesOfACell);

} // namespace

} // namespace tumbledeep
