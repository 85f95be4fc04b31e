// Gems that no play can get. What may happen is overrated throughout, so that a gem which is
// reported is lost for sure: nothing ever blocks a way for good but walls, rocks and dirt, and as
// soon as anything on the map can blow up, walls alone.
//
// For each cell it is worked out what may be there some time: the player, nothing, a gem, a rock.
// Each of these only ever comes to be true, and makes others true, until nothing changes.
#include "map/Checks.h"

#include "map/Ground.h"

#include <algorithm>
#include <array>
#include <deque>

namespace tumbledeep {

namespace {

/// What may be in a cell some time.
using May = std::uint8_t;
constexpr May Player = 1;
constexpr May Nothing = 2; ///< the cell reads empty
constexpr May Gem = 4;
constexpr May Rock = 8;
constexpr May Dirt = 16;

constexpr std::array<Offset, 2> Sides{ToLeft, ToRight};

/// The cells whose rules look at a cell, seen from that cell: see Futures::Apply.
constexpr std::array<Offset, 9> Askers{
    Here,           Above,          Below, ToLeft, ToRight, ToLeft + ToLeft, ToRight + ToRight,
    ToLeft + Above, ToRight + Above};

class Futures {
  public:
    explicit Futures(const CheckedMap& map);
    /// The cells from which a gem can come to the player.
    PerCell<char> GemsToBeGot() const;

  private:
    bool Is(Cell cell, May what) const { return (may[cell] & what) != 0; }
    void Add(Cell cell, May what);
    void Start(const MapObject& object);
    /// What follows from what may be in a cell.
    void Apply(Cell cell);
    void Walk(Cell cell);
    void Fall(Cell cell, May what);
    bool CanRoll(Cell cell, Offset side) const {
        return Is(cell + Below, Gem | Rock) && Is(cell + side, Nothing) &&
               Is(cell + side + Below, Nothing);
    }

    PerCell<char> walls;
    PerCell<May> may{0};
    PerCell<May> made{0}; ///< by factories, once their cell is empty
    std::deque<Cell> changed;
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
            if (blastsOpenAll) {
                may[cell] = walls[cell] != 0 ? 0 : Nothing | Rock;
            } else if (map.Start.Area(cell) == Kind::Empty) {
                may[cell] = Nothing;
            }
        }
    }
    for (const MapObject& object : map.Objects) Start(object);
    while (!changed.empty()) {
        const Cell cell = changed.front();
        changed.pop_front();
        Apply(cell);
    }
}

void Futures::Start(const MapObject& object) {
    const Cell cell = object.At();
    if (object.Which == Kind::Factory) {
        made[cell] |= MayOf(MadeBy(object.Tag).value_or(Kind::Empty));
        changed.push_back(cell);
    } else {
        Add(cell, MayOf(object.Which));
    }
}

void Futures::Add(Cell cell, May what) {
    if (walls[cell] != 0 || (may[cell] & what) == what) return;
    may[cell] |= what;
    for (const Offset asker : Askers) {
        if ((cell + asker).InGrid()) changed.push_back(cell + asker);
    }
}

void Futures::Apply(Cell cell) {
    if (Is(cell, Nothing)) Add(cell, made[cell]);
    if (Is(cell, Player)) Walk(cell);
    if (Is(cell, Gem)) Fall(cell, Gem);
    if (Is(cell, Rock)) Fall(cell, Rock);
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
        if (!Is(next, Rock) || !Is(next + side, Nothing)) continue;
        Add(next + side, Rock);
        Add(next, Nothing);
    }
}

/// A gem or a rock falls or rolls off, and a gem is taken by the player below it.
void Futures::Fall(Cell cell, May what) {
    const Cell below = cell + Below;
    if (Is(below, Nothing)) {
        Add(below, what);
        Add(cell, Nothing);
    }
    if (what == Gem && Is(below, Player)) Add(cell, Nothing);
    for (const Offset side : Sides) {
        if (!CanRoll(cell, side)) continue;
        Add(cell + side, what);
        Add(cell, Nothing);
    }
}

PerCell<char> Futures::GemsToBeGot() const {
    PerCell<char> got(0);
    std::vector<Cell> open;
    const auto add = [&](Cell cell) {
        if (!cell.InGrid() || !Is(cell, Gem) || got[cell] != 0) return;
        got[cell] = 1;
        open.push_back(cell);
    };
    for (int row = 0; row < GridSize; ++row) {
        for (int col = 0; col < GridSize; ++col) {
            const Cell cell(col, row);
            if (Is(cell, Player) || Is(cell + Below, Player)) add(cell);
        }
    }
    while (!open.empty()) {
        const Cell to = open.back();
        open.pop_back();
        if (Is(to, Nothing)) add(to + Above);
        for (const Offset side : Sides) {
            const Cell from = to + -side;
            if (from.InGrid() && CanRoll(from, side)) add(from);
        }
    }
    return got;
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
    const PerCell<char> got = Futures(map).GemsToBeGot();
    Findings found;
    for (const MapObject& object : map.Objects) {
        if (object.Which != Kind::Gem1Type || got[object.At()] != 0) continue;
        found.push_back(Error(
            object.Line,
            {"no play can get the gem in ", PlaceText(object.At()), ", so the map can't be won"},
            {"open a way to it, or let it fall"}));
    }
    return found;
}

} // namespace tumbledeep
