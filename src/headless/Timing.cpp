// The clock of the thread's processor time, and the figures of a run.
#include "headless/Timing.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

namespace tumbledeep {

Timing::Nanoseconds Timing::Now() {
    constexpr Nanoseconds second = 1'000'000'000;
    std::timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * second + now.tv_nsec;
}

void Timing::LoadEnds() { load = Now() - begun; }

void Timing::TickEnds(std::int64_t step) {
    const Nanoseconds ended = Now();
    // Reading the clock takes longer than a quiet tick, and how long it takes changes with the
    // machine's load: so it is measured anew each time.
    const Nanoseconds reading = Now() - ended;
    const Nanoseconds took = ended - begun - reading;
    sum += took;
    ++count;
    if (took > worst) {
        second = worst;
        worst = took;
        worstStep = step;
    } else {
        second = std::max(second, took);
    }
}

std::string Timing::Line(std::int64_t ticks) const {
    const double mean =
        static_cast<double>(sum) / 1e3 / static_cast<double>(std::max<std::int64_t>(1, count));
    std::array<char, 200> line{};
    std::snprintf(line.data(), line.size(),
                  "load %.3f worst %.3f (tick %lld) second %.3f mean %.3f over %lld of %lld",
                  Milliseconds(load), Milliseconds(worst), static_cast<long long>(worstStep),
                  Milliseconds(second), mean, static_cast<long long>(count),
                  static_cast<long long>(ticks));
    return line.data();
}

} // namespace tumbledeep
