// What of the board has been shown, so that after a tick only what changed is painted again.
#pragma once

#include "shell/frmMain.h"

#include <QRect>

#include <array>
#include <vector>

namespace tumbledeep {

/// The pools in the order in which they are painted, shapes first.
std::array<const Pool*, 12> PaintOrder(const frmDocument& board);

/// How many of them are shapes, drawn under all pictures.
inline constexpr std::size_t ShapePools = 2;

/// Twips to whole device pixels. `scale` is device pixels to a pixel of the game.
int ToDevice(float twips, int scale);

/// The place of a sprite on the board, in device pixels.
QRect SpriteRect(float left, float top, int scale);

/// The place of the board in the parent's client area, in device pixels.
QRect BoardRect(const frmDocument& board, int scale);

/// Remembers the sprites as they were last seen.
class BoardLook {
  public:
    /// The places on the board, in device pixels, whose look has changed since the last call; each
    /// within `visible`.
    std::vector<QRect> Changes(const frmDocument& board, int scale, const QRect& visible);

  private:
    struct PoolLook {
        std::vector<float> Left;
        std::vector<float> Top;
        std::vector<std::uint8_t> Visible;
        std::vector<Picture> Pictures;
    };

    void PoolChanges(const Pool& pool, PoolLook& last, int scale, const QRect& visible,
                     std::vector<QRect>& changes);

    std::array<PoolLook, 12> pools;
    Sprite you;
};

} // namespace tumbledeep
