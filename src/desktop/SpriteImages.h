// The catalogue as images of the toolkit, each pixel a square of whole device pixels. The drawings
// are pictures/'s, painting them is BoardCanvas's.
#pragma once

#include "pictures/Bitmap.h"
#include "world/Kind.h"

#include <QImage>

#include <functional>
#include <vector>

namespace tumbledeep {

class SpriteImages {
  public:
    /// Draws all images anew if the scale, in device pixels to a pixel of the game, is another than
    /// before. Comes before any image is asked for.
    void SetScale(int scale);

    /// What is painted for a sprite of that kind, or for the player. Shapes have one look each.
    const QImage& Of(Kind kind, Picture look) const;

  private:
    int scaleNow = 0;
    QImage you;
    QImage hardDirt;
    QImage dirt;
    std::vector<QImage> pictures;
};

/// The bitmap enlarged by whole pixels; those that `covers` leaves out become transparent.
QImage ImageOf(const Bitmap& bitmap, int scale,
               const std::function<bool(int x, int y)>& covers = nullptr);

} // namespace tumbledeep
