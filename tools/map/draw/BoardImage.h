// The board as the game's window shows it, as an image. Into a file it goes by image/Image.h.
#pragma once

#include "image/Image.h"
#include "world/Board.h"

namespace tumbledeep {

/// The board with all that is visible on it, as large as its window, `scale` pixels to a pixel of
/// the game. Throws std::runtime_error with a text for the user when that is too large for an
/// image, or nothing.
Image DrawBoard(const Board& board, int scale);

} // namespace tumbledeep
