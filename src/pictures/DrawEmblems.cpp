// The drawings that are no pictures of sprites: the shapes that lie beneath them, the disc of the
// status bar, and the program's icon, which shows a gem in a rock.
#include "pictures/Canvas.h"
#include "pictures/Catalogue.h"
#include "pictures/Draw.h"

namespace tumbledeep {

namespace {

Bitmap Filled(Colour colour) {
    Bitmap bitmap;
    bitmap.Pixels.fill(colour);
    return bitmap;
}

/// `width` is the rim's, in pixels.
Bitmap RimmedDisc(Colour fill, Colour rim, float width) {
    Bitmap bitmap;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (!InFullDisc(x, y)) continue;
            bitmap.At(x, y) = DistanceFromMiddle(x, y) > FullRadius - width ? rim : fill;
        }
    }
    return bitmap;
}

/// A gem still in its rock.
Bitmap DrawAppIcon() {
    Bitmap bitmap = DrawRock(1);
    StampDiamond(bitmap, 0, Middle - 2);
    return bitmap;
}

} // namespace

/// The player's rim is firm: no gem has one, so that an eye finds it at once.
const Bitmap& ShapeBitmap(Shape shape) {
    static const std::array<Bitmap, 3> shapes{RimmedDisc({255, 192, 192}, Black, 3.0F),
                                              Filled({192, 192, 192}), Filled(Black)};
    return shapes[static_cast<std::size_t>(shape)];
}

bool ShapeCovers(Shape shape, int x, int y) { return shape != Shape::You || InFullDisc(x, y); }

const Bitmap& StatusDisc() {
    static const Bitmap disc = RimmedDisc({255, 0, 0}, Black, 1.0F);
    return disc;
}

bool StatusDiscCovers(int x, int y) { return InFullDisc(x, y); }

const Bitmap& AppIcon() {
    static const Bitmap icon = DrawAppIcon();
    return icon;
}

bool AppIconCovers(int x, int y) { return InFullDisc(x, y); }

} // namespace tumbledeep
