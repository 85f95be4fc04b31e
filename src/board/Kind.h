// The thirteen values that a cell of the grid can hold.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tumbledeep {

enum class Kind : std::uint8_t {
    Empty,
    You,
    Dirt,
    HardDirt,
    Gem1Type,
    RoundRock,
    MovingMineT,
    MovingMineL,
    MovingMineR,
    MovingMineFL,
    MovingMineP,
    MovingMinePP,
    Bang,
};

/// One of the six kinds of mine.
constexpr bool IsMine(Kind kind) { return kind >= Kind::MovingMineT && kind <= Kind::MovingMinePP; }

/// The kind's name as maps and recipes write it; "" for an empty cell.
std::string_view KindText(Kind kind);

/// The kind of exactly that name; none for "factory" and any other text.
std::optional<Kind> KindOf(std::string_view text);

} // namespace tumbledeep
