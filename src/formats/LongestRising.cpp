// For each length the sequence is kept that ends lowest, and for each number the one before it.
#include "formats/LongestRising.h"

#include <algorithm>
#include <limits>

namespace tumbledeep {

std::vector<std::size_t> LongestRising(const std::vector<std::optional<int>>& numbers) {
    constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    std::vector<int> ends;         // the lowest number that ends a sequence, by its length
    std::vector<std::size_t> last; // the index of that number
    std::vector<std::size_t> previous(numbers.size(), none);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (!numbers[i]) continue;
        const auto at = std::ranges::lower_bound(ends, *numbers[i]);
        const auto length = static_cast<std::size_t>(at - ends.begin());
        if (length == ends.size()) {
            ends.push_back(*numbers[i]);
            last.push_back(i);
        } else {
            *at = *numbers[i];
            last[length] = i;
        }
        if (length > 0) previous[i] = last[length - 1];
    }
    std::vector<std::size_t> found;
    for (std::size_t i = last.empty() ? none : last.back(); i != none; i = previous[i]) {
        found.push_back(i);
    }
    std::ranges::reverse(found);
    return found;
}

} // namespace tumbledeep
