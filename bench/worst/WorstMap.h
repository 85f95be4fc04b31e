// Maps whose worst tick is as long as a tick can get: full pools in every arrangement that has hurt
// or could hurt. Each file of this folder has a table of some, a line for each. WorstBench.cpp
// plays them and times every tick.
#pragma once

#include "Boards.h"
#include "Pattern.h"
#include "formats/LoadMap.h"

#include <span>
#include <string>

namespace tumbledeep {

struct WorstMap {
    const char* Name;
    Board (*Make)();
    int Ticks;             ///< to be played: enough for the worst to come
    const char* Keys = ""; ///< letters typed before each tick; their arrows are held as well
};

/// From the loaded board through ticks 300 and 0, which run every routine.
inline constexpr int WholeCycle = 302;

// The tables. WorstBench.cpp lists them again.

std::span<const WorstMap> FallingMaps();
std::span<const WorstMap> ChainMaps();
std::span<const WorstMap> StackMaps();
std::span<const WorstMap> FactoryMaps();
std::span<const WorstMap> WalkingMaps();
std::span<const WorstMap> PlayerMaps();
std::span<const WorstMap> MixedMaps();

/// The place in twips of a column or row, the outermost wall of a pattern being 0.
constexpr float At(int cell) { return static_cast<float>(cell) * Pitch; }

/// The lines of many equal objects in one place.
inline std::string Stack(const Object& object, float left, float top, int count = Full) {
    const std::string line = LineOf(object, left, top);
    std::string lines;
    for (int i = 0; i < count; ++i) lines += line;
    return lines;
}

inline void AddBang(Board& board, float left, float top) {
    board.SpawnObject(Kind::Bang, left, top, Heading::Down);
}

} // namespace tumbledeep
