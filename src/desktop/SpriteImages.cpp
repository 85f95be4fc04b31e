// Bitmaps become images here once for a scale, enlarged by whole pixels, so that painting is plain
// copying.
#include "desktop/SpriteImages.h"

#include "pictures/Catalogue.h"

namespace tumbledeep {

QImage ImageOf(const Bitmap& bitmap, int scale, const std::function<bool(int x, int y)>& covers) {
    QImage image(Bitmap::Size * scale, Bitmap::Size * scale,
                 covers ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const Colour& colour = bitmap.At(x / scale, y / scale);
            const bool own = !covers || covers(x / scale, y / scale);
            line[x] = own ? qRgb(colour.Red, colour.Green, colour.Blue) : qRgba(0, 0, 0, 0);
        }
    }
    return image;
}

void SpriteImages::SetScale(int scale) {
    if (scale == scaleNow) return;
    scaleNow = scale;
    hardDirt = ImageOf(ShapeBitmap(Shape::HardDirt), scale);
    dirt = ImageOf(ShapeBitmap(Shape::Dirt), scale);
    you = ImageOf(ShapeBitmap(Shape::You), scale,
                  [](int x, int y) { return ShapeCovers(Shape::You, x, y); });
    pictures.clear();
    for (const Bitmap& bitmap : Catalogue()) pictures.push_back(ImageOf(bitmap, scale));
}

const QImage& SpriteImages::Of(Kind kind, Picture look) const {
    switch (kind) {
    case Kind::You: return you;
    case Kind::HardDirt: return hardDirt;
    case Kind::Dirt: return dirt;
    default: return pictures[static_cast<std::size_t>(look)];
    }
}

} // namespace tumbledeep
