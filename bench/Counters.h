// What the benchmarks print beside the time of an iteration.
#pragma once

#include <benchmark/benchmark.h>

namespace tumbledeep {

/// The time of each of the `count` parts that all iterations together have.
inline void CountEach(benchmark::State& state, const char* name, double count) {
    state.counters[name] =
        benchmark::Counter(count, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

} // namespace tumbledeep
