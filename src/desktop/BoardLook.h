// Where things lie on the screen in device pixels, and what of the board has been shown, so that
// after a tick only what has changed is painted again. The painting is BoardCanvas's.
#pragma once

#include "windows/frmMain.h"

#include <QRect>

#include <array>
#include <vector>

namespace tumbledeep {

/// Twips to whole device pixels. `scale` is device pixels to a pixel of the game.
int ToDevice(float twips, int scale);

/// The place of a sprite on the board, in device pixels.
QRect SpriteRect(float left, float top, int scale);

/// The place of the board in the parent's client area, in device pixels.
QRect BoardRect(const frmDocument& board, int scale);

/// Remembers the sprites as they were last seen.
class BoardLook {
  public:
    /// The places on the board, in device pixels, whose look has changed since the last call, cut
    /// to what lies within `visible`.
    std::vector<QRect> Changes(const frmDocument& board, int scale, const QRect& visible);

  private:
    std::array<std::vector<Sprite>, PoolCount> pools; ///< by the order of the kinds
    Sprite you;
};

} // namespace tumbledeep
