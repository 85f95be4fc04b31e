// A map of 90,000 lines, from its text to the board that is played.
#include "Boards.h"

#include <benchmark/benchmark.h>

#include <array>

namespace tumbledeep {

namespace {

void Load90000Lines(benchmark::State& state) {
    // Four kinds in turn, as no pool holds more than 32,767 sprites.
    static constexpr std::array<const char*, 4> Kinds{"dirt", "harddirt", "gem1type", "roundrock"};
    std::string map;
    for (int i = 0; i < 90'000; ++i) {
        map += std::string(Kinds[static_cast<std::size_t>(i % 4)]) + ' ' +
               std::to_string(i / 300 * 360) + ' ' + std::to_string(i % 300 * 360) + '\n';
    }
    for (auto step : state) {
        const Bench bench(map);
        benchmark::DoNotOptimize(bench.Game.ActiveChild.GemTotal);
    }
}
BENCHMARK(Load90000Lines)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep
