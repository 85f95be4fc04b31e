// The kinds of objects, and the one table of what the program knows about each.
#pragma once

#include "world/Picture.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tumbledeep {

/// Thirteen of these are what a cell of the grid can hold. A factory stands on a cell that reads
/// empty, so no cell ever holds that one.
enum class Kind : std::uint8_t {
    Empty,
    You,
    // The kinds that have a pool of sprites, in the order in which pools are listed.
    HardDirt,
    Dirt,
    Gem1Type,
    RoundRock,
    MovingMineT,
    MovingMineL,
    MovingMineR,
    MovingMineFL,
    MovingMineP,
    MovingMinePP,
    Factory,
    Bang,
};

inline constexpr std::size_t KindCount = static_cast<std::size_t>(Kind::Bang) + 1;
inline constexpr std::size_t FirstPool = static_cast<std::size_t>(Kind::HardDirt);
inline constexpr std::size_t PoolCount = KindCount - FirstPool;

/// One of the six kinds of mine.
constexpr bool IsMine(Kind kind) { return kind >= Kind::MovingMineT && kind <= Kind::MovingMinePP; }

/// What the tag of a kind's sprites holds in a map.
enum class TagUse : std::uint8_t { None, Heading, Recipe };

/// What the program knows about a kind that has a pool.
struct KindRow {
    Kind Which;
    std::string_view Text;     ///< in maps, in recipes and in the cells of the trace
    std::string_view PoolName; ///< in the trace
    TagUse Tag;
    Picture Template;   ///< of the sprite at index 0
    Picture UpPic;      ///< the store of heading "U"; None where no heading is shown
    int PictureMembers; ///< how many pictures a new sprite draws one of, from `Template` on; 0 none
    int Stamped;        ///< place among those written into the grid at a map's start; 0 never
    bool IsShape;       ///< drawn on the board's own surface, under all pictures
    float TemplateLeft; ///< where the layout has the template, in twips
    float TemplateTop;
};

/// The kinds that have a pool, by rising number.
std::span<const KindRow, PoolCount> PoolKinds();

/// The row of a kind; the kind must have a pool.
const KindRow& RowOf(Kind kind);

/// The kind's name as maps and the trace write it; "" for an empty cell, "factory" for a factory.
std::string_view KindText(Kind kind);

/// The kind of exactly that name, the factory's and the player's included; none for other texts.
std::optional<Kind> KindNamed(std::string_view text);

} // namespace tumbledeep
