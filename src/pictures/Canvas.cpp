// The strokes that all pictures share, in plain arithmetic without a toolkit, so that pictures are
// the same wherever they are drawn.
#include "pictures/Canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tumbledeep {

namespace {

std::uint8_t Channel(float value) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0F, 255.0F)));
}

float Between(float from, float to, float share) { return from + (to - from) * share; }

bool Inside(std::span<const Point> corners, float x, float y) {
    bool inside = false;
    Point last = corners.back();
    for (const Point corner : corners) {
        const bool crosses = (corner.Y > y) != (last.Y > y);
        if (crosses && x < Between(corner.X, last.X, (y - corner.Y) / (last.Y - corner.Y))) {
            inside = !inside;
        }
        last = corner;
    }
    return inside;
}

} // namespace

Colour Blend(Colour from, Colour to, float share) {
    const float held = std::clamp(share, 0.0F, 1.0F);
    return {Channel(Between(from.Red, to.Red, held)), Channel(Between(from.Green, to.Green, held)),
            Channel(Between(from.Blue, to.Blue, held))};
}

Colour Lit(Colour colour, float light) {
    return {Channel(static_cast<float>(colour.Red) * light),
            Channel(static_cast<float>(colour.Green) * light),
            Channel(static_cast<float>(colour.Blue) * light)};
}

float Grain(int x, int y, unsigned seed) {
    std::uint32_t mix = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^
                        static_cast<std::uint32_t>(y) * 0x85EBCA77U ^ seed * 0xC2B2AE3DU;
    mix = (mix ^ (mix >> 15)) * 0x2C1B3C6DU;
    mix = (mix ^ (mix >> 12)) * 0x297A2D39U;
    mix ^= mix >> 15;
    return static_cast<float>(mix >> 8) / 16777215.0F;
}

float Mottle(int x, int y, int blot, unsigned seed) {
    const int column = x / blot;
    const int row = y / blot;
    const float across = static_cast<float>(x % blot) / static_cast<float>(blot);
    const float down = static_cast<float>(y % blot) / static_cast<float>(blot);
    const float above = Between(Grain(column, row, seed), Grain(column + 1, row, seed), across);
    const float below =
        Between(Grain(column, row + 1, seed), Grain(column + 1, row + 1, seed), across);
    return Between(above, below, down);
}

float DistanceFromMiddle(int x, int y) {
    const int across = x - Middle;
    const int down = y - Middle;
    return std::sqrt(static_cast<float>(across * across + down * down));
}

bool InFullDisc(int x, int y) { return DistanceFromMiddle(x, y) <= FullRadius; }

void Stamp(Bitmap& bitmap, int left, int top, std::span<const std::string_view> pattern,
           std::span<const Ink> inks) {
    for (int row = 0; const std::string_view letters : pattern) {
        for (int column = 0; const char letter : letters) {
            const auto ink = std::find_if(inks.begin(), inks.end(),
                                          [letter](const Ink& i) { return i.Letter == letter; });
            if (ink != inks.end()) bitmap.At(left + column, top + row) = ink->Paint;
            ++column;
        }
        ++row;
    }
}

void FillPolygon(Bitmap& bitmap, std::span<const Point> corners, Colour colour) {
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (Inside(corners, static_cast<float>(x), static_cast<float>(y))) {
                bitmap.At(x, y) = colour;
            }
        }
    }
}

} // namespace tumbledeep
