// The four headings, in which mines go and the player steps: their letters in maps, their turns,
// the cell ahead, and the arrow keys that are held. The step keys w, s, a, d are in rules/player/.
#pragma once

#include "world/Cell.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tumbledeep {

/// The order matters: pictures are stored and arrow keys are read in it.
enum class Heading : std::uint8_t { Up, Down, Left, Right };

inline constexpr std::array<Heading, 4> Headings{Heading::Up, Heading::Down, Heading::Left,
                                                 Heading::Right};

/// The place of a heading in every table of four.
constexpr std::size_t Index(Heading heading) { return static_cast<std::size_t>(heading); }

/// The next cell that way.
constexpr Offset Ahead(Heading heading) {
    constexpr std::array<Offset, 4> offsets{Above, Below, ToLeft, ToRight};
    return offsets[Index(heading)];
}

constexpr Heading Opposite(Heading heading) {
    constexpr std::array<Heading, 4> opposites{Heading::Down, Heading::Up, Heading::Right,
                                               Heading::Left};
    return opposites[Index(heading)];
}

/// A quarter turn to the left, as seen on the screen.
constexpr Heading LeftOf(Heading heading) {
    constexpr std::array<Heading, 4> lefts{Heading::Left, Heading::Right, Heading::Down,
                                           Heading::Up};
    return lefts[Index(heading)];
}

constexpr Heading RightOf(Heading heading) { return Opposite(LeftOf(heading)); }

constexpr bool IsVertical(Heading heading) { return heading <= Heading::Down; }

/// By heading: the letters of maps and of the trace.
inline constexpr std::array<std::string_view, 4> HeadingLetters{"U", "D", "L", "R"};

/// The heading that a letter names; none for any other text, lower case included.
constexpr std::optional<Heading> HeadingNamed(std::string_view letter) {
    for (const Heading heading : Headings) {
        if (letter == HeadingLetters[Index(heading)]) return heading;
    }
    return std::nullopt;
}

/// The arrow keys that are held, one for each way.
class HeldKeys {
  public:
    constexpr HeldKeys() = default;
    constexpr bool Holds(Heading way) const { return keys[Index(way)]; }
    constexpr void Set(Heading way, bool down) { keys[Index(way)] = down; }
    friend bool operator==(const HeldKeys&, const HeldKeys&) = default;

  private:
    std::array<bool, 4> keys{};
};

} // namespace tumbledeep
