// How a picture of 25 by 25 pixels, which overlaps its neighbours by one, becomes a tile of 24 by
// 24, and how a tile shows the heading that the picture of some kinds does not.
#include "Tiles.h"

#include "pictures/Catalogue.h"

#include <cstdlib>
#include <vector>

namespace tumbledeep {

namespace {

constexpr int TileSize = Bitmap::Size - 1;
constexpr int Columns = 4;
constexpr int MarkHeight = 4;
constexpr Pixel Mark{0, 0, 0, 255};

Image ImageOf(Picture picture) {
    Image image(Bitmap::Size, Bitmap::Size);
    const Bitmap& bitmap = Catalogue()[static_cast<std::size_t>(picture)];
    for (std::size_t i = 0; i < image.Pixels.size(); ++i) {
        image.Pixels[i] = Opaque(bitmap.Pixels[i]);
    }
    return image;
}

/// What the shape does not cover is transparent.
Image ImageOf(Shape shape) {
    Image image(Bitmap::Size, Bitmap::Size);
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (ShapeCovers(shape, x, y)) image.At(x, y) = Opaque(ShapeBitmap(shape).At(x, y));
        }
    }
    return image;
}

int Difference(const Pixel& one, const Pixel& other) {
    return std::abs(one.Red - other.Red) + std::abs(one.Green - other.Green) +
           std::abs(one.Blue - other.Blue) + std::abs(one.Alpha - other.Alpha);
}

/// The column that is most like the next one; with `down` the row.
int Spare(const Image& image, bool down) {
    int spare = 0;
    int least = -1;
    for (int at = 0; at < TileSize; ++at) {
        int sum = 0;
        for (int along = 0; along < Bitmap::Size; ++along) {
            sum += down ? Difference(image.At(along, at), image.At(along, at + 1))
                        : Difference(image.At(at, along), image.At(at + 1, along));
        }
        if (least >= 0 && sum >= least) continue;
        least = sum;
        spare = at;
    }
    return spare;
}

/// The picture without the row and the column that it misses least: its outline stays whole.
Image Narrowed(const Image& image) {
    Image tile(TileSize, TileSize);
    const int column = Spare(image, false);
    const int row = Spare(image, true);
    for (int y = 0; y < TileSize; ++y) {
        for (int x = 0; x < TileSize; ++x) {
            tile.At(x, y) = image.At(x < column ? x : x + 1, y < row ? y : y + 1);
        }
    }
    return tile;
}

/// A small triangle at the edge to which the mine heads.
void MarkHeading(Image& tile, Heading heading) {
    const bool level = heading == Heading::Left || heading == Heading::Right;
    const bool far = heading == Heading::Down || heading == Heading::Right;
    for (int depth = 0; depth < MarkHeight; ++depth) {
        const int across = far ? TileSize - 1 - depth : depth;
        for (int along = TileSize / 2 - 1 - depth; along <= TileSize / 2 + depth; ++along) {
            (level ? tile.At(across, along) : tile.At(along, across)) = Mark;
        }
    }
}

Image ShapeOrPicture(const KindRow& row) {
    if (!row.IsShape) return ImageOf(row.Template);
    return ImageOf(row.Which == Kind::Dirt ? Shape::Dirt : Shape::HardDirt);
}

std::vector<Image> Tiles() {
    std::vector<Image> plain{Narrowed(ImageOf(Shape::You))};
    std::vector<Image> headed;
    for (const KindRow& row : PoolKinds()) {
        if (row.Tag == TagUse::Heading) {
            for (const Heading heading : Headings) {
                headed.push_back(Narrowed(ImageOf(HeadingPicture(row.UpPic, heading))));
                MarkHeading(headed.back(), heading);
            }
        } else if (row.Which != Kind::Bang) {
            plain.push_back(Narrowed(ShapeOrPicture(row)));
        }
    }
    while (plain.size() % Columns != 0) plain.emplace_back(TileSize, TileSize);
    plain.insert(plain.end(), headed.begin(), headed.end());
    return plain;
}

} // namespace

Image DrawTiles() {
    const std::vector<Image> tiles = Tiles();
    Image all(Columns * TileSize, static_cast<int>(tiles.size()) / Columns * TileSize);
    for (int y = 0; y < all.Height; ++y) {
        for (int x = 0; x < all.Width; ++x) {
            const int tile = y / TileSize * Columns + x / TileSize;
            all.At(x, y) = tiles[static_cast<std::size_t>(tile)].At(x % TileSize, y % TileSize);
        }
    }
    return all;
}

} // namespace tumbledeep
