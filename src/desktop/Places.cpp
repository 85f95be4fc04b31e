// How twips are rounded to device pixels, the same way wherever a thing lies.
#include "desktop/Places.h"

#include "pictures/Bitmap.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

/// Keeps the arithmetic of rectangles far from its limits.
constexpr float FarAway = 10'000'000;

} // namespace

int ToDevice(float twips, int scale) {
    const float device = std::floor(twips / TwipsPerPixel * static_cast<float>(scale) + 0.5F);
    return static_cast<int>(std::clamp(device, -FarAway, FarAway));
}

QPoint SpriteCorner(const Sprite& sprite, int scale) {
    return {ToDevice(sprite.Left, scale), ToDevice(sprite.Top, scale)};
}

int SpriteSide(int scale) { return Bitmap::Size * scale; }

QRect SpriteRect(const Sprite& sprite, int scale) {
    return {SpriteCorner(sprite, scale), QSize(SpriteSide(scale), SpriteSide(scale))};
}

QRect BoardRect(const frmDocument& board, int scale) {
    if (!board.Form.Visible) return {};
    return {ToDevice(board.Form.Left, scale), ToDevice(board.Form.Top, scale),
            std::max(0, ToDevice(board.Form.Width, scale)),
            std::max(0, ToDevice(board.Form.Height, scale))};
}

} // namespace tumbledeep
