// How much memory the state of a game takes when every pool is full and all that the pools keep at
// hand has been made. The time shown means nothing here.
#include "worst/WorstMap.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace tumbledeep {

namespace {

/// In bytes, of what has been asked for and not given back.
std::size_t Allocated() {
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

void StateOfFullPools(benchmark::State& state) {
    for ([[maybe_unused]] auto game : state) {
        const std::size_t before = Allocated();
        Board board = MixedMaps().front().Make();
        for (int tick = 0; tick < WholeCycle; ++tick) board.Tick({});
        state.counters["MiB"] =
            static_cast<double>(Allocated() - before + sizeof board) / (1024.0 * 1024.0);
    }
}
BENCHMARK(StateOfFullPools)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace tumbledeep
