// The letters of the step keys, which the arrow keys stand for.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

inline constexpr std::array<std::string_view, 4> StepKeys{"w", "s", "a", "d"};

constexpr std::string_view KeyOf(Heading way) { return StepKeys[Index(way)]; }

} // namespace tumbledeep
