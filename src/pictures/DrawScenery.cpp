// The Bang, a star of rays with a heart of its own shape, and the factory, a pattern of lines.
// Walls and dirt are plain fills of DrawEmblems.cpp.
#include "pictures/Canvas.h"
#include "pictures/Draw.h"

#include <array>

namespace tumbledeep {

namespace {

constexpr Colour Red{255, 0, 0};
constexpr Colour Yellow{255, 255, 0};

/// Tips and notches in turn, clockwise from the top.
constexpr std::array<Point, 24> Rays{{
    {11.0F, -0.6F}, {14.0F, 6.0F},  {18.5F, 0.5F},  {17.5F, 7.0F},  {24.4F, 4.5F},  {19.0F, 10.5F},
    {24.6F, 12.5F}, {19.0F, 14.5F}, {23.5F, 20.5F}, {17.0F, 17.5F}, {18.0F, 24.5F}, {13.5F, 19.0F},
    {11.5F, 24.6F}, {10.0F, 18.5F}, {5.0F, 23.5F},  {6.8F, 17.0F},  {0.0F, 19.0F},  {5.2F, 14.0F},
    {-0.6F, 11.0F}, {5.5F, 10.0F},  {1.0F, 4.0F},   {7.5F, 7.0F},   {6.0F, 0.0F},   {10.0F, 6.0F},
}};

/// A share of the way from the middle, which turns the rays into their own heart.
constexpr float HeartShare = 0.55F;

/// A saw-tooth roof with its chimney, and a row of windows below.
constexpr std::array<std::string_view, 25> FactoryLines{
    ".........................", //
    ".#####...................", //
    ".#...#...................", //
    "..#.#....................", //
    "..#.#....................", //
    "..#.#..#.....#.....#.....", //
    "..#.#..##....##....##....", //
    "..#.#..#.#...#.#...#.#...", //
    "..#.#..#..#..#..#..#..#..", //
    "..#.#..#...#.#...#.#...#.", //
    "..#.#..#....##....##....#", //
    "..#.#..#.....#.....#....#", //
    ".########################", //
    ".#......................#", //
    ".#.####.####..####.####.#", //
    ".#.#..#.#..#..#..#.#..#.#", //
    ".#.#..#.#..#..#..#.#..#.#", //
    ".#.####.####..####.####.#", //
    ".#......................#", //
    ".#......................#", //
    ".#.........####.........#", //
    ".#.........#..#.........#", //
    ".#.........#..#.........#", //
    ".########################", //
    ".........................",
};
constexpr std::array<Ink, 1> FactoryInk{{{'#', Black}}};

} // namespace

Bitmap DrawBang() {
    std::array<Point, Rays.size()> heart = Rays;
    for (Point& corner : heart) {
        corner.X = Middle + (corner.X - Middle) * HeartShare;
        corner.Y = Middle + (corner.Y - Middle) * HeartShare;
    }
    Bitmap bitmap;
    FillPolygon(bitmap, Rays, Red);
    FillPolygon(bitmap, heart, Yellow);
    return bitmap;
}

Bitmap DrawFactory() {
    Bitmap bitmap;
    Stamp(bitmap, 0, 0, FactoryLines, FactoryInk);
    return bitmap;
}

} // namespace tumbledeep
