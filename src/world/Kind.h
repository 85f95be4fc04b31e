// The kinds of objects, and the one table of what the program knows about each: its names, its tag,
// its pictures, its place in the grid's set-up. Nobody lists the kinds again. What the sprites of a
// kind do is in rules/, and how they look is in pictures/.
#pragma once

#include "world/Picture.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tumbledeep {

/// What a cell of the grid can hold, and one more: no cell ever holds Factory, as a factory stands
/// on a cell that reads empty.
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
    Picture Template;   ///< the picture of the template, the hidden sprite at index 0
    Picture UpPic;      ///< the first of the four pictures by heading; None where there are none
    int PictureMembers; ///< how many pictures a new sprite draws one of, from `Template` on; 0 none
    int Stamped;        ///< place in the order of writing into the grid at a map's start; 0 never
    bool IsShape;       ///< drawn on the board's own surface, under all pictures
    float TemplateLeft; ///< where the template stands, in twips
    float TemplateTop;
};

/// The kinds that have a pool, by rising number.
std::span<const KindRow, PoolCount> PoolKinds();

/// The row of a kind. Throws std::out_of_range for a kind without a pool, Empty and You.
const KindRow& RowOf(Kind kind);

/// Whether a map's lines of the kind end in a tag. False for the player, who has no pool.
bool HasTag(Kind kind);

/// The kind's name as maps and the trace write it; "" for an empty cell, "factory" for a factory.
std::string_view KindText(Kind kind);

/// The kind of exactly that name, the factory's and the player's included; none for other texts.
std::optional<Kind> KindNamed(std::string_view text);

} // namespace tumbledeep
