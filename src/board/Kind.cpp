// One table for both directions.
#include "board/Kind.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

constexpr std::array<std::string_view, 13> KindTexts{
    "",
    "you",
    "dirt",
    "harddirt",
    "gem1type",
    "roundrock",
    "movingmineT",
    "movingmineL",
    "movingmineR",
    "movingmineFL",
    "movingmineP",
    "movingminePP",
    "bang",
};

} // namespace

std::string_view KindText(Kind kind) { return KindTexts[static_cast<std::size_t>(kind)]; }

std::optional<Kind> KindOf(std::string_view text) {
    const auto found = std::find(KindTexts.begin(), KindTexts.end(), text);
    if (found == KindTexts.end()) return std::nullopt;
    return static_cast<Kind>(found - KindTexts.begin());
}

} // namespace tumbledeep
