// Time per tick, over whole cycles of the clock, since most ticks run only a few routines.
#include "Boards.h"

#include "platform/HostFiles.h"
#include "platform/Platform.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace tumbledeep {

namespace {

constexpr int Cycle = 301;
constexpr int LargestMap = 301;

/// A gem out of reach keeps a map from being won, and a player off the grid from being lost.
const std::string Endless = "gem1type 0 0\nyou 1e9 1e9\n";

/// Plays whole cycles of one board.
void PlayCycles(benchmark::State& state, const std::string& map) {
    Bench bench(map + Endless);
    for (auto cycle : state) {
        for (int tick = 0; tick < Cycle; ++tick) bench.Board().Interval100Timer_Timer();
    }
    state.counters["per_tick"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * Cycle,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void LargestShippedMap(benchmark::State& state) {
    std::string largest;
    for (const auto& file : std::filesystem::directory_iterator(TUMBLEDEEP_LEVELS)) {
        if (file.path().extension() != ".TBM") continue;
        std::string map = ReadFile(file.path());
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
    int ticks = 0;
    for (auto chain : state) {
        state.PauseTiming();
        Bench bench(map + Endless);
        frmDocument& board = bench.Board();
        board.SpawnObject("bang", 360, 360, "D");
        state.ResumeTiming();
        do {
            board.Interval100Timer_Timer();
            ++ticks;
        } while (board.Bang.HiddenCount() < board.Bang.Count());
        if (board.MovingMineP.HiddenCount() < mines) state.SkipWithError("the chain broke off");
    }
    state.counters["per_tick"] =
        benchmark::Counter(ticks, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(ChainOf5000Mines)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep
