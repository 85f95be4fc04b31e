// What the screen shows of one object: where it stands, whether it is there, and its picture.
#pragma once

#include <cstdint>

namespace tumbledeep {

/// A picture by number. The game names the numbers (board/Picture.h); a front end only shows them.
enum class Picture : std::uint8_t;

/// Width and height of every sprite, in twips: 25 pixels, one more than the pitch of the cells.
inline constexpr float SpriteSize = 375.0F;

/// A sprite that stands alone. `Left` and `Top` are twips on the board.
struct Sprite {
    float Left = 0.0F;
    float Top = 0.0F;
    bool Visible = false;
};

} // namespace tumbledeep
