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

/// The kinds that have sprites, and the player: all that is painted on a board.
inline constexpr std::size_t PaintedCount = PoolCount + 1;

/// These in the order of painting: shapes, the player, pictures.
const std::array<Kind, PaintedCount>& PaintOrder();

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
