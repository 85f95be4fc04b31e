// How images get their sizes, and the writing of a PNG file by libpng. The icon is made by the mean
// of areas, so that it is good at sizes that no whole factor gives.
#include "image/Image.h"

#include "pictures/Catalogue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <png.h>
#include <stdexcept>

namespace tumbledeep {

namespace {

/// How much of the drawing's pixel `source` the icon's pixel `target` takes, along one axis.
double Overlap(int target, int source, double step) {
    const double from = std::max(target * step, double(source));
    const double to = std::min((target + 1) * step, source + 1.0);
    return std::max(0.0, to - from);
}

Pixel IconPixel(int x, int y, double step) {
    double covered = 0;
    std::array<double, 3> sums{};
    const auto end = [step](int target) {
        return std::min(Bitmap::Size, static_cast<int>(std::ceil((target + 1) * step)));
    };
    for (int sourceY = static_cast<int>(y * step); sourceY < end(y); ++sourceY) {
        for (int sourceX = static_cast<int>(x * step); sourceX < end(x); ++sourceX) {
            if (!AppIconCovers(sourceX, sourceY)) continue;
            const double share = Overlap(x, sourceX, step) * Overlap(y, sourceY, step);
            const Colour& colour = AppIcon().At(sourceX, sourceY);
            covered += share;
            sums[0] += share * colour.Red;
            sums[1] += share * colour.Green;
            sums[2] += share * colour.Blue;
        }
    }
    if (covered <= 0) return {};
    const auto channel = [](double value) {
        return static_cast<std::uint8_t>(std::min(std::lround(value), 255L));
    };
    return {channel(sums[0] / covered), channel(sums[1] / covered), channel(sums[2] / covered),
            channel(255 * covered / (step * step))};
}

} // namespace

Image Enlarged(const Image& image, int scale) {
    Image enlarged(image.Width * scale, image.Height * scale);
    for (int y = 0; y < enlarged.Height; ++y) {
        for (int x = 0; x < enlarged.Width; ++x) {
            enlarged.At(x, y) = image.At(x / scale, y / scale);
        }
    }
    return enlarged;
}

Image IconImage(int size) {
    Image image(size, size);
    const double step = double(Bitmap::Size) / size;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) image.At(x, y) = IconPixel(x, y, step);
    }
    return image;
}

void WritePng(const Image& image, const std::string& path) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.Width);
    png.height = static_cast<png_uint_32>(image.Height);
    png.format = PNG_FORMAT_RGBA;
    if (!png_image_write_to_file(&png, path.c_str(), 0, image.Pixels.data(), 0, nullptr)) {
        throw std::runtime_error("can't write " + path + ": " + png.message);
    }
}

} // namespace tumbledeep
