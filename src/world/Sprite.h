// One object of a map as a pool keeps it: where it stands, its tag, whether it is in play, its
// look. The pool is Pool.h's.
#pragma once

#include "world/Picture.h"

#include <bit>
#include <cstdint>
#include <optional>

namespace tumbledeep {

/// The tag of a sprite by number: none, a heading's letter, or a text that the pool keeps. Only
/// that pool can tell the text; see TagText.
enum class TagNumber : std::uint16_t { None, FirstHeading, FirstText = 5 };

constexpr TagNumber NumberOf(Heading heading) {
    return static_cast<TagNumber>(static_cast<unsigned>(TagNumber::FirstHeading) +
                                  static_cast<unsigned>(heading));
}

/// The heading that a tag is; none if it is anything else.
constexpr std::optional<Heading> HeadingNumbered(TagNumber tag) {
    if (tag < TagNumber::FirstHeading || tag >= TagNumber::FirstText) return std::nullopt;
    return static_cast<Heading>(static_cast<unsigned>(tag) -
                                static_cast<unsigned>(TagNumber::FirstHeading));
}

/// One sprite as a pool keeps it.
struct Sprite {
    float Left = 0.0F; ///< in twips on the board, as is `Top`
    float Top = 0.0F;
    TagNumber Tag = TagNumber::None;
    bool Visible = false; ///< in play; a hidden sprite is gone, or was never there
    Picture Look = Picture::None;

    /// Positions compare by their bits: minus zero is another place than zero. Only sprites of one
    /// pool can be compared, as another pool may number its tags otherwise.
    friend bool operator==(const Sprite& a, const Sprite& b) {
        const auto bits = [](float value) { return std::bit_cast<std::uint32_t>(value); };
        return bits(a.Left) == bits(b.Left) && bits(a.Top) == bits(b.Top) && a.Tag == b.Tag &&
               a.Visible == b.Visible && a.Look == b.Look;
    }
};

} // namespace tumbledeep
