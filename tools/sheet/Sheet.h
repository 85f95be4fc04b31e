// The whole catalogue on one sheet, for papers and for the eye of who draws: a row to a kind, a
// column to a heading or member. The drawings are src/pictures'.
#pragma once

#include "image/Image.h"

namespace tumbledeep {

/// The sheet, one pixel of it to a pixel of a picture.
Image DrawSheet();

} // namespace tumbledeep
