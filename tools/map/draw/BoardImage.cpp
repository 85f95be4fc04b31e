// Painting from the catalogue, sprite by sprite, cut at the board's edges.
#include "map/draw/BoardImage.h"

#include "pictures/Catalogue.h"
#include "pictures/DevicePixels.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace tumbledeep {

namespace {

/// In pixels: an image of this size in both directions takes a gigabyte.
constexpr int LongestSide = 16384;

constexpr Pixel Paper = Opaque({});

std::optional<Shape> ShapeOf(Kind kind) {
    switch (kind) {
    case Kind::You: return Shape::You;
    case Kind::HardDirt: return Shape::HardDirt;
    case Kind::Dirt: return Shape::Dirt;
    default: return std::nullopt;
    }
}

void Paint(Image& image, Kind kind, const Sprite& sprite, int scale) {
    if (!sprite.Visible) return;
    const std::optional<Shape> shape = ShapeOf(kind);
    const Bitmap& look =
        shape ? ShapeBitmap(*shape) : Catalogue()[static_cast<std::size_t>(sprite.Look)];
    const int left = ToDevice(sprite.Left, scale);
    const int top = ToDevice(sprite.Top, scale);
    const int right = std::min(left + Bitmap::Size * scale, image.Width);
    const int bottom = std::min(top + Bitmap::Size * scale, image.Height);
    for (int y = std::max(top, 0); y < bottom; ++y) {
        for (int x = std::max(left, 0); x < right; ++x) {
            const int column = (x - left) / scale;
            const int row = (y - top) / scale;
            if (shape && !ShapeCovers(*shape, column, row)) continue;
            image.At(x, y) = Opaque(look.At(column, row));
        }
    }
}

Image EmptyBoard(const MapEdges& edges, int scale) {
    const int width = ToDevice(edges.MapRight, scale);
    const int height = ToDevice(edges.MapBottom, scale);
    if (width < 1 || height < 1) {
        throw std::runtime_error("there is nothing to draw: walls and dirt give a board its size");
    }
    if (width > LongestSide || height > LongestSide) {
        throw std::runtime_error("the image would have " + std::to_string(width) + " x " +
                                 std::to_string(height) + " pixels, and " +
                                 std::to_string(LongestSide) + " are the most on a side");
    }
    return {width, height, Paper};
}

} // namespace

Image DrawBoard(const Board& board, int scale) {
    Image image = EmptyBoard(board.MeasureMap(), scale);
    for (const Kind kind : PaintOrder()) {
        if (kind == Kind::You) {
            Paint(image, kind, board.You, scale);
            continue;
        }
        for (const Sprite& sprite : board.Pools[kind]) Paint(image, kind, sprite, scale);
    }
    return image;
}

} // namespace tumbledeep
