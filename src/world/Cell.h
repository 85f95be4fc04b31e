// How positions in twips and cells of the grid belong together. The cell in column 1 and row 1 has
// its upper left corner at 0, 0; column 0 and row 0 are real cells that no map draws.
#pragma once

#include "base/Rounding.h"

namespace tumbledeep {

/// Twips from one cell to the next: 24 pixels.
inline constexpr float Pitch = 360.0F;

/// Width and height of every sprite, in twips: 25 pixels, so each overlaps the next by one.
inline constexpr float SpriteSize = 375.0F;

/// The unit of positions: fifteen to a pixel of the game.
inline constexpr float TwipsPerPixel = 15.0F;

/// A column and a row of the grid, on it or not.
struct Cell {
    int Col;
    int Row;
    friend constexpr bool operator==(Cell, Cell) = default;
};

/// A way by whole cells; columns grow to the right and rows downward.
struct Offset {
    int Col;
    int Row;
    constexpr Offset operator+(Offset other) const { return {Col + other.Col, Row + other.Row}; }
    constexpr Offset operator-() const { return {-Col, -Row}; }
    friend constexpr bool operator==(Offset, Offset) = default;
};

inline constexpr Offset Here{0, 0};
inline constexpr Offset ToRight{1, 0};
inline constexpr Offset ToLeft{-1, 0};
inline constexpr Offset Above{0, -1};
inline constexpr Offset Below{0, 1};

/// A column or row, rounded; one beyond any grid counts as -1, which is outside.
constexpr int GridIndex(float value) {
    constexpr float farthest = 1000.0F; // any number behind the grid that an int can hold
    const float whole = RoundToEven(value);
    return whole >= -1.0F && whole <= farthest ? static_cast<int>(whole) : -1;
}

/// A position in twips as a column or row, not rounded: `cells` further than the one it is in.
constexpr float GridPlace(float twips, int cells = 0) {
    return twips / Pitch + static_cast<float>(1 + cells);
}

/// The cell of anything with `Left` and `Top`, or one near it. The offset is added before the
/// rounding, which matters to sprites that stand between two cells.
template <class AnySprite> constexpr Cell CellOf(const AnySprite& sprite, Offset offset = Here) {
    return {GridIndex(GridPlace(sprite.Left, offset.Col)),
            GridIndex(GridPlace(sprite.Top, offset.Row))};
}

/// Moves anything with `Left` and `Top` by whole cells, at one stroke. The other axis is left as
/// it is: adding nothing would still turn minus zero into zero.
template <class AnySprite> constexpr void ShiftByCells(AnySprite& sprite, Offset offset) {
    if (offset.Col != 0) sprite.Left += static_cast<float>(offset.Col) * Pitch;
    if (offset.Row != 0) sprite.Top += static_cast<float>(offset.Row) * Pitch;
}

} // namespace tumbledeep
