// The longest tick of each map in worst/: how long a player may wait for a frame, whatever the map.
// Every tick is timed by itself, in time of the processor; the benchmark's own time is that of the
// longest one. Averages over ticks are TickBench.cpp's.
#include "worst/WorstMap.h"

#include "rules/player/StepKeys.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

namespace tumbledeep {

namespace {

/// In nanoseconds, a reading of the clock included, by tick.
using Times = std::vector<std::int64_t>;

std::int64_t ProcessorTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

HeldKeys ArrowsOf(std::string_view letters) {
    HeldKeys held;
    for (const Heading way : Headings) held.Set(way, letters.find(KeyOf(way)) != letters.npos);
    return held;
}

/// Plays the map once and notes the time of each tick. Returns whether it is still running then.
bool Play(Board board, const WorstMap& map, Times& times) {
    const HeldKeys held = ArrowsOf(map.Keys);
    for (std::int64_t& time : times) {
        const std::int64_t start = ProcessorTime();
        const Outcome outcome = board.Period(map.Keys, held);
        time = ProcessorTime() - start;
        if (outcome != Outcome::Running) return false;
    }
    return true;
}

/// A game is always the same, so each tick counts by its quickest time in several games: what else
/// the machine does falls out. Slow games are played once.
bool PlaySeveral(const WorstMap& map, Times& quickest) {
    constexpr int games = 3;
    constexpr std::int64_t enough = 300'000'000;
    const Board board = map.Make();
    const std::int64_t start = ProcessorTime();
    Times times(quickest);
    for (int game = 0; game < games && ProcessorTime() - start < enough; ++game) {
        if (!Play(board, map, times)) return false;
        std::transform(times.begin(), times.end(), quickest.begin(), quickest.begin(),
                       [game](std::int64_t now, std::int64_t before) {
                           return game == 0 ? now : std::min(now, before);
                       });
    }
    return true;
}

void Report(benchmark::State& state, Times times) {
    const auto worst = std::max_element(times.begin(), times.end());
    state.SetIterationTime(static_cast<double>(*worst) * 1e-9);
    state.counters["worst_tick"] = static_cast<double>(worst - times.begin() + 1);
    std::sort(times.begin(), times.end());
    state.counters["worst_ms"] = static_cast<double>(times.back()) * 1e-6;
    state.counters["second_ms"] = static_cast<double>(times[times.size() - 2]) * 1e-6;
    state.counters["median_us"] = static_cast<double>(times[times.size() / 2]) * 1e-3;
}

void Worst(benchmark::State& state, const WorstMap& map) {
    for ([[maybe_unused]] auto game : state) {
        Times times(static_cast<std::size_t>(map.Ticks));
        if (!PlaySeveral(map, times)) return state.SkipWithError("the map has come to its end");
        Report(state, std::move(times));
    }
}

const bool WorstRegistered = [] {
    for (const auto& maps : {FallingMaps(), ChainMaps(), StackMaps(), FactoryMaps(), WalkingMaps(),
                             PlayerMaps(), MixedMaps()}) {
        for (const WorstMap& map : maps) {
            const std::string name = std::string("Worst/") + map.Name;
            benchmark::RegisterBenchmark(name.c_str(), Worst, map)
                ->UseManualTime()
                ->Iterations(1)
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}();

} // namespace

} // namespace tumbledeep
