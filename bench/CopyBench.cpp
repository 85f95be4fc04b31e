// What a solver pays for every board that it keeps: a copy made, a copy into a board that is there
// already, and a hash, for each map that ships and a huge one. Ticks are TickBench.cpp's.
#include "Boards.h"

#include "formats/LoadMap.h"

#include <benchmark/benchmark.h>

namespace tumbledeep {

namespace {

void MakeCopy(benchmark::State& state, const Board& board) {
    for ([[maybe_unused]] auto copy : state) {
        const Board made(board);
        benchmark::DoNotOptimize(&made);
    }
}

void AssignCopy(benchmark::State& state, const Board& board) {
    Board target;
    for ([[maybe_unused]] auto copy : state) {
        target = board;
        benchmark::DoNotOptimize(&target);
    }
}

void HashBoard(benchmark::State& state, const Board& board) {
    for ([[maybe_unused]] auto hash : state) benchmark::DoNotOptimize(board.HashValue());
}

void RegisterFor(const std::string& name, const std::string& map) {
    const Board board = LoadMap(map, 1);
    const auto add = [&](const char* what, void (*run)(benchmark::State&, const Board&)) {
        benchmark::RegisterBenchmark((what + ("/" + name)).c_str(), run, board)
            ->Unit(benchmark::kMicrosecond);
    };
    add("MakeCopy", MakeCopy);
    add("AssignCopy", AssignCopy);
    add("HashBoard", HashBoard);
}

const bool Registered = [] {
    for (const std::string& file : ShippedMaps()) RegisterFor(file, ShippedMap(file));
    RegisterFor("90000 sprites", MapOf90000Lines());
    return true;
}();

} // namespace

} // namespace tumbledeep
