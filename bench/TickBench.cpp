// The time per tick on the largest map that ships and on maps full of rocks, mines or Bangs. Whole
// cycles of the clock are measured, since most ticks run only a few routines. Painting is not in
// it.
#include "Boards.h"

#include "formats/LoadMap.h"

#include <benchmark/benchmark.h>

namespace tumbledeep {

namespace {

constexpr int Cycle = 301;      // ticks
constexpr int LargestMap = 301; // cells, both ways

/// A gem out of reach keeps a map from being won, and a player off the grid from being lost.
const std::string Endless = "gem1type 0 0\nyou 1e9 1e9\n";

void CountTicks(benchmark::State& state, double ticks) {
    state.counters["per_tick"] =
        benchmark::Counter(ticks, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// Plays whole cycles of one board.
void PlayCycles(benchmark::State& state, const std::string& map) {
    Board board = LoadMap(map + Endless, 1);
    for ([[maybe_unused]] auto cycle : state) {
        for (int tick = 0; tick < Cycle; ++tick) board.Tick({});
    }
    CountTicks(state, static_cast<double>(state.iterations()) * Cycle);
}

void LargestShippedMap(benchmark::State& state) {
    std::string largest;
    for (const std::string& file : ShippedMaps()) {
        std::string map = ShippedMap(file);
        if (map.size() > largest.size()) largest = std::move(map);
    }
    PlayCycles(state, largest);
}
BENCHMARK(LargestShippedMap)->Unit(benchmark::kMicrosecond);

void RestingRocks(benchmark::State& state) {
    int rocks = 0;
    const std::string map = MapOf(LargestMap, [&rocks](int, int row) {
        const bool full = row < LargestMap / 2 || rocks >= Pool::Limit - 1;
        return full ? Object{} : (++rocks, Object{"roundrock", ""});
    });
    PlayCycles(state, map);
}
BENCHMARK(RestingRocks)->Unit(benchmark::kMicrosecond);

void WalkingMines(benchmark::State& state) {
    int mines = 0;
    const std::string map = MapOf(LargestMap, [&mines](int col, int row) {
        const bool here = col % 3 == 1 && row % 3 == 1 && mines < 10'000;
        return here ? (++mines, Object{"movingmineL", "R"}) : Object{};
    });
    PlayCycles(state, map);
}
BENCHMARK(WalkingMines)->Unit(benchmark::kMicrosecond);

/// A block of mines that stand still, from the blast in its corner to the last Bang.
void ChainOf5000Mines(benchmark::State& state) {
    int mines = 0;
    const std::string map = MapOf(LargestMap, [&mines](int col, int row) {
        const bool here = col > 1 && row > 1 && col < 102 && mines < 5'000;
        return here ? (++mines, Object{"movingmineP", "none"}) : Object{};
    });
    Board start = LoadMap(map + Endless, 1);
    start.SpawnObject(Kind::Bang, 360, 360, Heading::Down);
    int ticks = 0;
    for ([[maybe_unused]] auto chain : state) {
        Board board = start;
        const Pool& bangs = board.Pools[Kind::Bang];
        do {
            board.Tick({});
            ++ticks;
        } while (bangs.HiddenCount() < bangs.Count());
        if (board.Pools[Kind::MovingMineP].HiddenCount() < mines) {
            state.SkipWithError("the chain broke off");
        }
    }
    CountTicks(state, ticks);
}
BENCHMARK(ChainOf5000Mines)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep
