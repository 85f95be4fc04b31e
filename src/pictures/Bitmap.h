// A drawn picture as plain data: 25 by 25 pixels of 24-bit colour, opaque. How it is drawn is told
// in Canvas.h, how it comes on a screen in desktop/SpriteImages.h.
#pragma once

#include <array>
#include <cstdint>

namespace tumbledeep {

struct Colour {
    std::uint8_t Red = 255;
    std::uint8_t Green = 255;
    std::uint8_t Blue = 255;
    friend bool operator==(const Colour&, const Colour&) = default;
};

/// White until drawn upon; rows from the top.
struct Bitmap {
    static constexpr int Size = 25;
    std::array<Colour, std::size_t{Size} * Size> Pixels{};

    Colour& At(int x, int y) { return Pixels[Index(x, y)]; }
    const Colour& At(int x, int y) const { return Pixels[Index(x, y)]; }
    friend bool operator==(const Bitmap&, const Bitmap&) = default;

  private:
    static constexpr std::size_t Index(int x, int y) {
        return static_cast<std::size_t>(y) * Size + static_cast<std::size_t>(x);
    }
};

} // namespace tumbledeep
