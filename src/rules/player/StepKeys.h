// The letters of the step keys by heading, for the keys that are typed and for the arrow keys,
// which stand for them. What a key does is told in MoveYou.cpp.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// In the order of Heading.
inline constexpr std::array<std::string_view, 4> StepKeys{"w", "s", "a", "d"};

constexpr std::string_view KeyOf(Heading way) { return StepKeys[Index(way)]; }

} // namespace tumbledeep
