// What all pictures are drawn with: patterns of text, blends of colours, polygons, and a grain that
// is the same on every run. The drawings themselves are in the files named Draw. Pixels count from
// the upper left, 0 to 24 on both axes; who draws keeps inside.
#pragma once

#include "pictures/Bitmap.h"

#include <span>
#include <string_view>

namespace tumbledeep {

inline constexpr Colour White{};
inline constexpr Colour Black{0, 0, 0};

/// The middle pixel's column and row, and how far a disc that fills the bitmap reaches from there.
inline constexpr int Middle = Bitmap::Size / 2;
inline constexpr float FullRadius = Bitmap::Size / 2.0F;

/// A place in a bitmap, in pixels.
struct Point {
    float X = 0;
    float Y = 0;
};

/// A letter of a pattern and what it paints. A letter without ink leaves the bitmap as it is.
struct Ink {
    char Letter;
    Colour Paint;
};

/// `from` at a share of 0, `to` at a share of 1; shares beyond these count as the nearer one.
Colour Blend(Colour from, Colour to, float share);

/// The colour with its three channels multiplied, each held to 255.
Colour Lit(Colour colour, float light);

/// A number from 0 to 1 for a pixel and a seed, without a pattern that an eye would find.
float Grain(int x, int y, unsigned seed);

/// The same in soft blots of about `blot` pixels across.
float Mottle(int x, int y, int blot, unsigned seed);

/// In pixels, from centre to centre.
float DistanceFromMiddle(int x, int y);

/// Whether the pixel belongs to the disc that fills the bitmap.
bool InFullDisc(int x, int y);

/// Paints the pattern, a text for each row of pixels, with its upper left letter at (left, top).
void Stamp(Bitmap& bitmap, int left, int top, std::span<const std::string_view> pattern,
           std::span<const Ink> inks);

/// Paints every pixel whose centre lies inside the polygon; pixel (x, y) has its centre at (x, y).
void FillPolygon(Bitmap& bitmap, std::span<const Point> corners, Colour colour);

} // namespace tumbledeep
