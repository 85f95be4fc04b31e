// Where things lie on the screen, in whole device pixels. `scale` is device pixels to a pixel of
// the game throughout. What lies there is BoardLook's.
#pragma once

#include "windows/frmDocument.h"

#include <QPoint>
#include <QRect>

namespace tumbledeep {

/// The upper left corner of a sprite on the board.
QPoint SpriteCorner(const Sprite& sprite, int scale);

/// The width and height of a sprite.
int SpriteSide(int scale);

/// The place of a sprite on the board.
QRect SpriteRect(const Sprite& sprite, int scale);

/// The place of the board in the parent's client area; empty while there is none to be seen.
QRect BoardRect(const frmDocument& board, int scale);

} // namespace tumbledeep
