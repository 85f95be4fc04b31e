// The longest rising subsequence, by which a text picture keeps as many objects in their turn as it
// can.
#pragma once

#include <optional>
#include <vector>

namespace tumbledeep {

/// The indexes, rising, of the longest strictly rising subsequence, or of one of them; those
/// without a number are passed over. Takes n log n time.
std::vector<std::size_t> LongestRising(const std::vector<std::optional<int>>& numbers);

} // namespace tumbledeep
