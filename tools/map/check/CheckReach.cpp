// Gems that no play can get. What may happen is overrated throughout, so that a gem which is
// reported is lost for sure: nothing ever blocks a way for good but walls, rocks and dirt, and as
// soon as anything on the map can blow up, walls alone.
//
// For each cell it is worked out whether it may be empty some time, and whether the player may come
// to it. Either only ever comes to be true, and makes others true, until nothing changes. Where
// things move to need not be followed: they only move to cells that may be empty, where the player
// walks anyway, and from which nothing else can keep him.
#include "map/check/Checks.h"

#include "map/check/Ground.h"
#include "rules/mines/Recipe.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

/// What may be in a cell some time.
using May = std::uint8_t;
constexpr May Player = 1;
constexpr May Nothing = 2; ///< the cell reads empty
// And what is there at the start.
constexpr May Gem = 4;
constexpr May Rock = 8;
constexpr May Dirt = 16;

constexpr std::array<Offset, 2> Sides{ToLeft, ToRight};

class Futures {
  public:
    explicit Futures(const CheckedMap& map);
    bool PlayerComesTo(Cell cell) const { return Is(cell, Player); }

  private:
    bool Is(Cell cell, May what) const { return (may[cell] & what) != 0; }
    void Add(Cell cell, May what);
    /// What follows from what may be in a cell and round it.
    void Apply(Cell cell);
    void Walk(Cell cell);
    bool CanFall(Cell cell) const;

    PerCell<char> walls;
    PerCell<May> may{0};
    std::vector<Cell> toApply;
};

bool BlowsUp(const MapObject& object) {
    const auto kind = object.Which == Kind::Factory ? MadeBy(object.Tag) : object.Which;
    return kind && (IsMine(*kind) || *kind == Kind::Bang);
}

May MayOf(Kind kind) {
    switch (kind) {
    case Kind::You: return Player;
    case Kind::Gem1Type: return Gem;
    case Kind::RoundRock: return Rock;
    case Kind::Dirt: return Dirt;
    default: return 0;
    }
}

Futures::Futures(const CheckedMap& map) : walls(Walls(map)) {
    const bool blastsOpenAll = std::ranges::any_of(map.Objects, BlowsUp);
    for (int row = 0; row < GridSize; ++row) {
        for (int col = 0; col < GridSize; ++col) {
            const Cell cell(col, row);
            const bool isEmpty = map.Start.Area(cell) == Kind::Empty;
            if (isEmpty || (blastsOpenAll && walls[cell] == 0)) may[cell] = Nothing;
        }
    }
    for (const MapObject& object : map.Objects) Add(object.At(), MayOf(object.Which));
    while (!toApply.empty()) {
        const Cell cell = toApply.back();
        toApply.pop_back();
        Apply(cell);
    }
}

void Futures::Add(Cell cell, May what) {
    // Dirt can lie off the board, where nobody comes.
    if (!cell.InGrid() || walls[cell] != 0 || (may[cell] & what) == what) return;
    may[cell] |= what;
    // Rules look so far: one row up and down, two cells to each side.
    for (int row = -1; row <= 1; ++row) {
        for (int col = -2; col <= 2; ++col) {
            if (const Cell near = cell + Offset{col, row}; near.InGrid()) toApply.push_back(near);
        }
    }
}

void Futures::Apply(Cell cell) {
    if (Is(cell, Player)) Walk(cell);
    if (Is(cell, Gem | Rock) && CanFall(cell)) Add(cell, Nothing);
}

/// The player goes on from a cell, and pushes rocks that lie beside it.
void Futures::Walk(Cell cell) {
    Add(cell, Nothing);
    for (const Heading way : Headings) {
        const Cell next = cell + Ahead(way);
        if (Is(next, Nothing | Gem | Dirt)) Add(next, Player);
    }
    for (const Offset side : Sides) {
        const Cell next = cell + side;
        if (Is(next, Rock) && Is(next + side, Nothing)) Add(next, Nothing);
    }
}

/// Whether what lies in a cell may fall or roll off.
bool Futures::CanFall(Cell cell) const {
    const Cell below = cell + Below;
    const auto canRoll = [&](Offset side) {
        return Is(cell + side, Nothing) && Is(below + side, Nothing);
    };
    return Is(below, Nothing) || (Is(below, Gem | Rock) && (canRoll(ToLeft) || canRoll(ToRight)));
}

/// Whether the rules of cells tell all: nothing that moves lies between cells or off the board.
bool IsPlain(const CheckedMap& map) {
    return std::ranges::all_of(map.Objects, [](const MapObject& object) {
        return object.Which == Kind::HardDirt || object.Which == Kind::Dirt ||
               (object.OnPitch() && object.At().InGrid());
    });
}

} // namespace

Findings CheckReach(const CheckedMap& map) {
    if (map.PlayerLines.empty() || !IsPlain(map)) return {};
    const Futures futures(map);
    Findings found;
    for (const MapObject& object : map.Objects) {
        // A gem that falls comes to no cell but those by which the player can come to it.
        if (object.Which != Kind::Gem1Type || futures.PlayerComesTo(object.At())) continue;
        found.push_back(Error(
            object.Line,
            {"no play can get the gem in ", PlaceText(object.At()), ", so the map can't be won"},
            {"open a way to it, or let it fall"}));
    }
    return found;
}

} // namespace tumbledeep
