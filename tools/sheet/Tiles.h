// The catalogue as the tileset of the map editor: what a map can hold, a tile to each kind and
// heading. The tiles' names and numbers are in editor/tumbledeep.tsx.
#pragma once

#include "image/Image.h"

namespace tumbledeep {

/// Rows of four tiles of 24 by 24 pixels: kinds without a heading in the order of the kinds, the
/// player first, and then a row of four headings to each other kind.
Image DrawTiles();

} // namespace tumbledeep
