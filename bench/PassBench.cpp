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

/// A map each of whose cells within the walls holds something. Of 100 cells 16 are dirt, 12 walls,
/// 18 gems, 18 rocks, and 6 mines of each kind with any heading.
std::string MixedMap(int width, int height) {
    constexpr std::string_view mixture = "................"
                                         "############"
                                         "******************"
                                         "OOOOOOOOOOOOOOOOOO"
                                         "TTTTTTLLLLLLRRRRRRFFFFFFPPPPPPQQQQQQ";
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
Board Settled(const benchmark::State& state) {
    Board board = LoadMap(
        MixedMap(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))) + Endless, 1);
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

void Pass(benchmark::State& state) {
    Board board = Settled(state);
    for ([[maybe_unused]] auto pass : state) OnePass(board);
}

void MixedTicks(benchmark::State& state) {
    Board board = Settled(state);
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

BENCHMARK(Pass)->Args({40, 22})->Args({301, 301})->Unit(benchmark::kMicrosecond);
BENCHMARK(MixedTicks)->Args({40, 22})->Args({301, 301})->Unit(benchmark::kMicrosecond);
BENCHMARK(SpritesOfACell);

} // namespace

} // namespace tumbledeep
