// A picture of any size with transparency: enlarging, the icon at any size, and the way into a PNG
// file. What stands on the sheet of all pictures is Sheet.h's.
#pragma once

#include "pictures/Bitmap.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tumbledeep {

struct Pixel {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;
    std::uint8_t Alpha = 0;
};

constexpr Pixel Opaque(Colour colour) { return {colour.Red, colour.Green, colour.Blue, 255}; }

struct Image {
    int Width = 0;
    int Height = 0;
    std::vector<Pixel> Pixels;

    Image(int width, int height, Pixel fill = {})
        : Width(width), Height(height), Pixels(std::size_t(width) * std::size_t(height), fill) {}

    Pixel& At(int x, int y) { return Pixels[std::size_t(y) * std::size_t(Width) + std::size_t(x)]; }
    const Pixel& At(int x, int y) const {
        return Pixels[std::size_t(y) * std::size_t(Width) + std::size_t(x)];
    }
};

/// Every pixel becomes a square of `scale` by `scale`.
Image Enlarged(const Image& image, int scale);

/// The icon at any size: each pixel is the mean of the area that it takes from the drawing.
Image IconImage(int size);

/// Throws `std::runtime_error` with a line for the user when the file can't be written.
void WritePng(const Image& image, const std::string& path);

} // namespace tumbledeep
