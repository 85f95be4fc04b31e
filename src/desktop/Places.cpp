// Places and sizes in twips become rectangles of the toolkit.
#include "desktop/Places.h"

#include "pictures/Bitmap.h"
#include "pictures/DevicePixels.h"

#include <algorithm>

namespace tumbledeep {

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
