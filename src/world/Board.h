// A running map as a value: grid, sprites, player, counters, the clock's count and the random
// numbers. It copies, assigns and compares, and two boards never know of each other. A key or a
// tick goes in, an Outcome comes out; no box is shown and no file is touched here. The routines are
// the rules of the game, and their bodies are in rules/. A board in a window is
// windows/frmDocument.h.
#pragma once

#include "base/Random.h"
#include "base/Rounding.h"
#include "world/Area.h"
#include "world/Pool.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tumbledeep {

/// How a map stands after a tick. What follows a win or a death is windows/flow/EndMap.cpp's.
enum class Outcome : std::uint8_t {
    Running,
    Won,
    Died,
    DiedUntold, ///< died, and the box with the gems remaining is left out
};

/// The side to which all of one kind roll in one call of their routine.
enum class RollSide : std::uint8_t { Right = 1, Left = 2 };

constexpr Offset WayOf(RollSide side) { return side == RollSide::Right ? ToRight : ToLeft; }

/// The pools, one for each kind that has sprites.
class PoolSet {
  public:
    PoolSet();
    Pool& operator[](Kind kind) { return pools[static_cast<std::size_t>(kind) - FirstPool]; }
    const Pool& operator[](Kind kind) const {
        return pools[static_cast<std::size_t>(kind) - FirstPool];
    }
    friend bool operator==(const PoolSet&, const PoolSet&) = default;

  private:
    std::array<Pool, PoolCount> pools;
};

/// A step that the player has made, and where it ended, in twips.
struct Walk {
    Heading Way = Heading::Up;
    float Left = 0;
    float Top = 0;
};

/// The steps of one tick or one key, in order. There is room for four: a tick reads four arrow
/// keys, and each makes one step at most. One more throws std::out_of_range.
class WalkList {
  public:
    void Clear() { count = 0; }
    void Add(const Walk& walk) { walks.at(count++) = walk; }
    auto begin() const { return walks.begin(); }
    auto end() const { return walks.begin() + static_cast<std::ptrdiff_t>(count); }

  private:
    std::array<Walk, 4> walks{};
    std::size_t count = 0;
};

/// The highest value of the clock's counter, after which comes 0.
inline constexpr int LastTick = 300;

/// In ticks: how often the gems are counted anew, and how often the status bar shows their number.
/// The view that flips by pages looks at the player as often as the gems are counted.
inline constexpr int RecountPeriod = 10;
inline constexpr int StatusPeriod = 30;

/// The periodic timer on the board. It does not run by itself: who owns the board calls Tick.
struct Timer {
    int Interval; ///< in milliseconds
    bool Enabled; ///< ticks come; false while the game is paused
    friend bool operator==(const Timer&, const Timer&) = default;
};

/// How far a map's walls and dirt reach, in twips; 0 without any. The board's window is that large.
struct MapEdges {
    float MapRight = 0; ///< a whole number of any size
    float MapBottom = 0;
};

class Board {
  public:
    /// A board with nothing but the templates, its clock running. LoadMap in formats/ makes one
    /// from a map.
    Board() = default;

    AreaGrid Area;
    PoolSet Pools; ///< index 0 of each is a hidden template
    /// The player's sprite. A map without a line for the player leaves it here, between two cells;
    /// tests/films/SetUpTest.cpp pins it.
    Sprite You{2280, 4560, TagNumber::None, true, Picture::None};

    Timer Interval100Timer{10, true}; ///< 10 milliseconds, whatever its name says
    std::int16_t TickCount = 0;       ///< of the last tick, 0 to LastTick
    float YouCol = 0;                 ///< the player's column, not rounded
    double YouRow = 0;                ///< the player's row, a whole number of any size
    std::int16_t GemTotal = 0;        ///< sprites of gems at set-up, the hidden template included
    std::int16_t GemsLeft = 0;        ///< as of the last recount
    std::optional<std::int16_t>
        GemsShown; ///< `GemsLeft` as the status bar shows it; none before the first time
    bool YouDead = false;
    bool MoveReady = false; ///< the next step key counts; without it a key is lost
    /// By index in the pool of factories: calls of FactoryTick since the factory last made
    /// something or found its cell taken, up to 32767.
    std::vector<std::int16_t> FactoryCount;

    // What the last call gave out. It is no part of the state and does not count in comparisons.

    Outcome Result = Outcome::Running; ///< of the last tick, or of a routine called by itself
    WalkList Walks;                    ///< of the last tick or key; the view follows by them

    /// Whether two boards will play alike: all of the state is equal, numbers by their bits.
    friend bool operator==(const Board& a, const Board& b);
    /// Equal boards have equal hashes, on every host.
    std::uint64_t HashValue() const;

    // Set-up, in the order of the calls. formats/LoadMap.h makes the sprites after Randomize.

    /// Seeds the random numbers.
    void Randomize(std::uint32_t seed) { random.Seed(seed); }
    /// Sets `YouCol`, `YouRow` and the player's cell in `Area` from the player's sprite.
    void YouStart();
    /// Gives the mines the pictures of their headings, and sets `GemTotal`.
    void ResetArea();
    /// The lower edge of the lowest visible wall or dirt, and the right edge likewise.
    MapEdges MeasureMap() const;
    /// Fills `Area` anew from the sprites, makes the player ready and alive, and seeds the random
    /// numbers again.
    void ResetStart(std::uint32_t seed);

    // Play.

    /// One tick, whether the timer is enabled or not: all routines that are due at the next value
    /// of `TickCount`, with the arrow keys that are held. Nothing more of the tick runs once the
    /// map is won or the player is dead.
    Outcome Tick(HeldKeys held);
    /// The value of `TickCount` in the next tick. A cycle has 301 ticks: 300 and 0 follow one
    /// another and are multiples of every period, so all routines run twice in a row there;
    /// tests/films/ClockTest.cpp pins it.
    std::int16_t NextTick() const { return TickCount < LastTick ? To16(TickCount + 1) : To16(0); }
    /// Carries out a key: "w", "a", "s" or "d" is a step, "p" stops and starts the clock. Any key
    /// of a ready player, one without meaning too, writes the visible gems into `Area` again.
    void MoveYou(std::string_view key);
    /// One period of the timer for a player's hands: the letters typed, one after the other, then
    /// a tick if the clock runs.
    Outcome Period(std::string_view letters, HeldKeys held);

    // The routines of the clock, in its order. Those named for a kind give each of its visible
    // sprites one turn. `Result` is written only when the map ends.

    void CheckGameEnd();
    void FactoryTick();
    void MineLTick();
    void MineFLTick();
    void MineRTick();
    void MineTTick();
    void RockTick();
    void GemTick();
    void BangTick();
    /// A step for each arrow key held, in the order up, down, left, right; `Walks` has those made.
    void PollArrowKeys(HeldKeys held);
    void ShowGemsRemaining() { GemsShown = GemsLeft; }
    void MinePPTick();
    void MinePTick();

    // Words that rules share. A sprite is named by its kind and its index in the kind's pool.

    /// Brings a sprite into play at a position in twips; `tag` is the heading of a mine. The kind
    /// must have a pool and be no factory. The hidden sprite with the highest index is used again,
    /// and its cell in `Area` written. With none hidden a sprite is added, and its cell is not
    /// written. Does nothing when the pool is full.
    void SpawnObject(Kind kind, float left, float top, Heading tag);
    /// Gives a sprite a random picture if its kind has several; the first and the last come half
    /// as often as the others. For other kinds no random number is drawn.
    void DrawPicture(Kind kind, int index);
    /// Moves a sprite by whole cells: its old cell in `Area` becomes empty, the new one its kind.
    void MoveSprite(Kind kind, int index, Offset offset);
    /// Hides a sprite and empties its cell.
    void TakeAway(Kind kind, int index);
    /// Draws a side, right or left with equal chance.
    RollSide DrawRollSide();
    /// Moves a sprite one cell to a side, if the cell there and the one below that are empty.
    void Roll(Kind kind, int index, RollSide side);
    /// True when the player stands right above, below, left or right of a sprite's cell.
    bool TouchesYou(Kind kind, int index) const {
        const Pool& pool = Pools[kind];
        if (!pool.LiesBetween(index)) return Area.HasBeside(pool.CellOf(index), Kind::You);
        const auto isYou = [&](Offset way) { return Area(pool.CellOf(index, way)) == Kind::You; };
        return isYou(Above) || isYou(Below) || isYou(ToLeft) || isYou(ToRight);
    }
    /// The death of the player, which ends the tick. Who calls it returns at once.
    void YouDie() { Die(Outcome::Died); }
    /// The same with the outcome given, Died or DiedUntold.
    void Die(Outcome road);
    /// Writes every visible sprite of a kind into `Area`.
    void Stamp(Kind kind);

  private:
    /// MoveYou without forgetting the steps before it.
    void Step(std::string_view key);

    Random random;
};

} // namespace tumbledeep
