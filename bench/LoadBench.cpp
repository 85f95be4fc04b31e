// The time from the text of a map of 90,000 lines to the board that is played. Reading the file is
// not in it.
#include "Boards.h"

#include "formats/LoadMap.h"

#include <benchmark/benchmark.h>

namespace tumbledeep {

namespace {

void Load90000Lines(benchmark::State& state) {
    const std::string map = MapOf90000Lines();
    for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(LoadMap(map, 1).GemTotal);
}
BENCHMARK(Load90000Lines)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep
