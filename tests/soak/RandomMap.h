// Maps that no author would draw, by seed.
#pragma once

#include <cstdint>
#include <string>

namespace tumbledeep {

/// The text of a map of 1 by 1 to 301 by 301 cells: all kinds, odd tags, factories with all
/// recipes, objects between cells, with and without walls, a player or a gem that nothing reaches.
std::string RandomMap(std::uint32_t seed);

} // namespace tumbledeep
