// How positions in twips and cells of the grid belong together.
#pragma once

namespace tumbledeep {

/// Twips from one cell to the next.
inline constexpr float Pitch = 360.0F;

/// A column and a row of the grid, on it or not.
struct Cell {
    int Col;
    int Row;
};

/// A neighbour by whole cells; columns grow to the right and rows downward.
struct Offset {
    int Col;
    int Row;
    constexpr Offset operator+(Offset other) const { return {Col + other.Col, Row + other.Row}; }
};

inline constexpr Offset Here{0, 0};
inline constexpr Offset ToRight{1, 0};
inline constexpr Offset ToLeft{-1, 0};
inline constexpr Offset Above{0, -1};
inline constexpr Offset Below{0, 1};

/// The nearest whole number, a tie going to the even one. Adding and taking off a number whose
/// last bit weighs 1 lets the processor round; from 2^22 on single precision needs none here.
constexpr float RoundToEven(float value) {
    constexpr float limit = 0x1p22F;
    constexpr float lastBitOne = 0x1.8p23F;
    return value > -limit && value < limit ? (value + lastBitOne) - lastBitOne : value;
}

/// A rounded column or row; one beyond any grid counts as -1, which is outside.
constexpr int GridIndex(float value) {
    const float whole = RoundToEven(value);
    return whole >= -1.0F && whole <= 1000.0F ? static_cast<int>(whole) : -1;
}

/// The cell of a sprite, or one near it. The offset is added before the rounding, which matters to
/// sprites that stand between two cells.
template <class AnySprite> Cell Near(const AnySprite& sprite, Offset offset = Here) {
    return {GridIndex(sprite.Left / Pitch + static_cast<float>(1 + offset.Col)),
            GridIndex(sprite.Top / Pitch + static_cast<float>(1 + offset.Row))};
}

/// Moves a sprite by whole cells, at one stroke. The other axis is left as it is: adding nothing
/// would still turn minus zero into zero.
template <class AnySprite> void Shift(AnySprite& sprite, Offset offset) {
    if (offset.Col != 0) sprite.Left += static_cast<float>(offset.Col) * Pitch;
    if (offset.Row != 0) sprite.Top += static_cast<float>(offset.Row) * Pitch;
}

} // namespace tumbledeep
