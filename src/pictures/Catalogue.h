// The look of everything: each picture, shape and emblem, drawn once by code for a white board, and
// the order of painting. Which sprite shows which picture is told in world/Kind.cpp; enlarging and
// painting are desktop/'s.
#pragma once

#include "pictures/Bitmap.h"
#include "world/Kind.h"

#include <array>
#include <cstdint>

namespace tumbledeep {

/// All pictures by number. `Picture::None` stays white and is never shown.
const std::array<Bitmap, PictureCount>& Catalogue();

/// The kinds that have sprites in the order of painting: shapes, then pictures. The player is
/// painted in between.
const std::array<Kind, PoolCount>& PaintOrder();

/// What is painted on the board's own surface, beneath all pictures.
enum class Shape : std::uint8_t { You, Dirt, HardDirt };

/// A shape, and which of its pixels are painted; the others are white and show what lies beneath.
const Bitmap& ShapeBitmap(Shape shape);
bool ShapeCovers(Shape shape, int x, int y);

/// The picture of the status bar's panel; what it does not cover is transparent.
const Bitmap& StatusDisc();
bool StatusDiscCovers(int x, int y);

/// The picture of the program's windows; what it does not cover is transparent.
const Bitmap& AppIcon();
bool AppIconCovers(int x, int y);

} // namespace tumbledeep
