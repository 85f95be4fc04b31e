// The time per tick on the largest map that ships and on maps full of rocks, mines or Bangs. Whole
// cycles of the clock are measured, since most ticks run only a few routines. Painting is not in
// it.
#include "Boards.h"
#include "Counters.h"

#include "formats/LoadMap.h"

#include <benchmark/benchmark.h>

namespace tumbledeep {

namespace {

constexpr int ClockCycle = 301; // ticks
constexpr int LargestMap = 301; // cells, both ways

/// Plays whole cycles of one board.
void PlayCycles(benchmark::State& state, const std::string& map) {
    Board board = LoadMap(map + Endless, 1);
    for ([[maybe_unused]] auto cycle : state) {
        for (int tick = 0; tick < ClockCycle; ++tick) board.Tick({});
    }
    CountEach(state, "per_tick", static_cast<double>(state.iterations()) * ClockCycle);
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
    const std::string map = MapOf(LargestMap, LargestMap, [&rocks](int, int row) {
        const bool full = row < LargestMap / 2 || rocks >= Pool::Limit - 1;
        return full ? Object{} : (++rocks, Object{"roundrock", ""});
    });
    PlayCycles(state, map);
    constexpr int rockTicks = ClockCycle / 6 + 1; // of a cycle; 0 is a multiple too
    CountEach(state, "per_rock", static_cast<double>(state.iterations()) * rockTicks * rocks);
}
BENCHMARK(RestingRocks)->Unit(benchmark::kMicrosecond);

void WalkingMines(benchmark::State& state) {
    int mines = 0;
    const std::string map = MapOf(LargestMap, LargestMap, [&mines](int col, int row) {
        const bool here = col % 3 == 1 && row % 3 == 1 && mines < 10'000;
        return here ? (++mines, Object{"movingmineL", "R"}) : Object{};
    });
    PlayCycles(state, map);
}
BENCHMARK(WalkingMines)->Unit(benchmark::kMicrosecond);

/// A block of mines that stand still, from the blast in its corner to the last Bang.
void ChainOf5000Mines(benchmark::State& state) {
    int mines = 0;
    const std::string map = MapOf(LargestMap, LargestMap, [&mines](int col, int row) {
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
    CountEach(state, "per_tick", ticks);
}
BENCHMARK(ChainOf5000Mines)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep
