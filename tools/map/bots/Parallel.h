// Work shared out among all cores of the machine.
#pragma once

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace tumbledeep {

/// Calls `work(i)` once for each i from 0 to count - 1, several at a time, and returns when all are
/// done. The calls must not touch what another one writes, and must not throw.
void ForAll(int count, const auto& work) {
    const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    std::atomic<int> next{0};
    const auto takeTurns = [&] {
        for (int i = next++; i < count; i = next++) work(i);
    };
    std::vector<std::jthread> helpers;
    for (int core = 1; core < std::min(cores, count); ++core) helpers.emplace_back(takeTurns);
    takeTurns();
}

} // namespace tumbledeep
