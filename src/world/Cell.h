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

/// Columns of the grid, and rows: both from 0 to 300.
inline constexpr int GridSize = 301;

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

/// A column and a row, on the grid or beside it, as one small number, to which a step in a
/// direction adds the same amount everywhere.
class Cell {
  public:
    /// So far beside the grid, cells are told apart: as far as any rule looks from a sprite.
    static constexpr int Margin = 2;
    /// Numbers to a row. A power of two, so that column and row are a few bits of the number.
    static constexpr int RowLength = 512;

    /// Cells farther outside than the margin are all alike, and a step from one never leads in.
    constexpr Cell(int col, int row)
        : number(static_cast<unsigned>(Lane(row) * RowLength + Lane(col))) {}
    static constexpr Cell Numbered(unsigned number) { return Cell(number); }

    constexpr unsigned Number() const { return number; }
    constexpr int Col() const { return static_cast<int>(number % RowLength) - Margin; }
    constexpr int Row() const { return static_cast<int>(number / RowLength) - Margin; }
    constexpr bool InGrid() const {
        return static_cast<unsigned>(Col()) < GridSize && static_cast<unsigned>(Row()) < GridSize;
    }
    constexpr Cell operator+(Offset offset) const {
        return Cell(number + static_cast<unsigned>(offset.Row * RowLength + offset.Col));
    }
    friend constexpr bool operator==(Cell, Cell) = default;

  private:
    constexpr explicit Cell(unsigned cellNumber) : number(cellNumber) {}
    static constexpr int Lane(int index) {
        constexpr int farOutside = 400; // beyond the last row or column, with room for a step back
        return index >= -Margin && index < farOutside ? index + Margin : farOutside + Margin;
    }

    unsigned number;
};

/// A whole number as a column or row. Numbers farther outside the grid than any rule looks all give
/// one that is outside too, since an int might not hold them.
constexpr int WholeIndex(float whole) {
    constexpr float farthest = 1000.0F;
    const bool near = whole >= static_cast<float>(-Cell::Margin) && whole <= farthest;
    return near ? static_cast<int>(whole) : static_cast<int>(farthest);
}

/// The nearest whole number as a column or row, a tie going to the even one.
constexpr int GridIndex(float value) { return WholeIndex(RoundToEven(value)); }

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

/// Whether a column or row, not rounded and rounded, lies so close to the middle between two whole
/// numbers that CellOf can give other neighbours than a step from the nearest one. On the grid,
/// what single precision loses here and in moves is far less than the margin of a thousandth.
constexpr bool IsBetween(float place, float whole) {
    return place - whole > 0.499F || place - whole < -0.499F;
}

/// Moves anything with `Left` and `Top` by whole cells. An axis without a shift is not touched:
/// adding 0 would turn minus zero into zero, and the trace prints the two apart.
template <class AnySprite> constexpr void ShiftByCells(AnySprite& sprite, Offset offset) {
    if (offset.Col != 0) sprite.Left += static_cast<float>(offset.Col) * Pitch;
    if (offset.Row != 0) sprite.Top += static_cast<float>(offset.Row) * Pitch;
}

} // namespace tumbledeep
