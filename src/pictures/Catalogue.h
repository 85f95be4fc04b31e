// The look of everything: each picture, shape and emblem, drawn once by code for a white board.
#pragma once

#include "pictures/Bitmap.h"
#include "world/Kind.h"

#include <array>
#include <cstdint>

namespace tumbledeep {

/// By the number of the picture. `Picture::None` stays white and is never shown.
const std::array<Bitmap, PictureCount>& Catalogue();

/// The kinds that have sprites in the order in which they are painted: shapes first, which the
/// player's lies above, then pictures.
const std::array<Kind, PoolCount>& PaintOrder();

/// What is painted on the board's own surface, beneath all pictures.
enum class Shape : std::uint8_t { You, Dirt, HardDirt };

/// Only the pixels that the shape covers are its own; the others are white and are not painted.
const Bitmap& ShapeBitmap(Shape shape);
bool ShapeCovers(Shape shape, int x, int y);

/// The picture of the status bar's panel; what it does not cover is transparent.
const Bitmap& StatusDisc();
bool StatusDiscCovers(int x, int y);

/// The picture of the program's windows; what it does not cover is transparent.
const Bitmap& AppIcon();
bool AppIconCovers(int x, int y);

} // namespace tumbledeep
