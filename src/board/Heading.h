// The four ways a mine can head, as its tag writes them.
#pragma once

#include "board/Cell.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tumbledeep {

/// In the order in which the pictures of a kind's headings stand.
enum class Heading : std::uint8_t { Up, Down, Left, Right };

inline constexpr std::array<std::string_view, 4> HeadingTags{"U", "D", "L", "R"};
inline constexpr std::array<Offset, 4> HeadingOffsets{Above, Below, ToLeft, ToRight};

constexpr std::string_view TagOf(Heading heading) {
    return HeadingTags[static_cast<std::size_t>(heading)];
}

/// The cell ahead of a sprite with that heading.
constexpr Offset Ahead(Heading heading) {
    return HeadingOffsets[static_cast<std::size_t>(heading)];
}

constexpr Heading Opposite(Heading heading) {
    constexpr std::array<Heading, 4> opposites{Heading::Down, Heading::Up, Heading::Right,
                                               Heading::Left};
    return opposites[static_cast<std::size_t>(heading)];
}

/// A quarter turn to the left, as seen on the screen.
constexpr Heading LeftOf(Heading heading) {
    constexpr std::array<Heading, 4> lefts{Heading::Left, Heading::Right, Heading::Down,
                                           Heading::Up};
    return lefts[static_cast<std::size_t>(heading)];
}

constexpr Heading RightOf(Heading heading) { return Opposite(LeftOf(heading)); }

/// The heading that a tag names; none for any other text, lower case included.
constexpr std::optional<Heading> HeadingOf(std::string_view tag) {
    for (std::size_t i = 0; i < HeadingTags.size(); ++i) {
        if (tag == HeadingTags[i]) return static_cast<Heading>(i);
    }
    return std::nullopt;
}

} // namespace tumbledeep
