// Positions in twips and cells of the grid, and how one becomes the other. The cell in column 1 and
// row 1 has its upper left corner at 0, 0; column 0 and row 0 are real cells that no map draws.
// What a cell holds is world/Area.h's.
#pragma once

#include "base/Rounding.h"

namespace tumbledeep {

/// Twips from one cell to the next: 24 pixels.
inline constexpr float Pitch = 360.0F;

/// Width and height of every sprite, in twips: 25 pixels, so each overlaps the next by one.
inline constexpr float SpriteSize = 375.0F;

/// Positions are in twips: fifteen to a pixel of the game.
inline constexpr float TwipsPerPixel = 15.0F;

/// A column and a row of the grid, on it or not.
struct Cell {
    int Col;
    int Row;
    friend constexpr bool operator==(Cell, Cell) = default;
};

/// A distance in whole cells; columns grow to the right and rows downward.
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

/// The nearest whole number as a column or row, a tie going to the even one. A number far outside
/// the grid becomes -1, which is outside as well, since an int might not hold it.
constexpr int GridIndex(float value) {
    constexpr float farthest = 1000.0F; // any number above 300 that an int can hold
    const float whole = RoundToEven(value);
    return whole >= -1.0F && whole <= farthest ? static_cast<int>(whole) : -1;
}

/// The column or row of a position in twips, not rounded, `cells` added to it.
constexpr float GridPlace(float twips, int cells = 0) {
    return twips / Pitch + static_cast<float>(1 + cells);
}

/// The cell of anything with `Left` and `Top`, or one near it. The offset is added first and the
/// sum rounded once: for a sprite between two cells that gives other cells than rounding first.
template <class AnySprite> constexpr Cell CellOf(const AnySprite& sprite, Offset offset = Here) {
    return {GridIndex(GridPlace(sprite.Left, offset.Col)),
            GridIndex(GridPlace(sprite.Top, offset.Row))};
}

/// Moves anything with `Left` and `Top` by whole cells. An axis without a shift is not touched:
/// adding 0 would turn minus zero into zero, and the trace prints the two apart.
template <class AnySprite> constexpr void ShiftByCells(AnySprite& sprite, Offset offset) {
    if (offset.Col != 0) sprite.Left += static_cast<float>(offset.Col) * Pitch;
    if (offset.Row != 0) sprite.Top += static_cast<float>(offset.Row) * Pitch;
}

} // namespace tumbledeep
