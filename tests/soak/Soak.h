// One random map played with random hands, watched for what must always hold.
#pragma once

#include <cstdint>
#include <string>

namespace tumbledeep {

/// Plays the map of that seed for so many ticks, or to the end of the process. Returns "" or the
/// first thing that was wrong.
std::string Soak(std::uint32_t seed, int ticks);

} // namespace tumbledeep
