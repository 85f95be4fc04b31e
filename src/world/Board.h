// A running map as a value: the grid, the sprites, the player, the counters, the clock's count and
// the random numbers. It copies, assigns and compares, and two boards never know of each other.
// Its routines are the rules of the game; each routine's body is in rules/, in a file of its name.
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

/// How a map stands after a tick. What comes of it is the window's to show.
enum class Outcome : std::uint8_t {
    Running,
    Won,
    Died,
    DiedUntold, ///< likewise, but the player is not told the gems remaining
};

/// The side to which everything rolls in one call.
enum class RollSide : std::uint8_t { Right = 1, Left = 2 };

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

/// The steps of one call, in order: a tick polls four keys, and each makes one step at most.
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

/// Ticks between two recounts of the gems, and between two looks at them in the status bar. The
/// view flips by pages as often as the gems are counted.
inline constexpr int RecountPeriod = 10;
inline constexpr int StatusPeriod = 30;

/// The periodic timer on the board: its period, in milliseconds, and its switch.
struct Timer {
    int Interval;
    bool Enabled;
    friend bool operator==(const Timer&, const Timer&) = default;
};

class Board {
  public:
    /// A board with nothing but the templates, its clock running.
    Board() = default;

    AreaGrid Area;
    PoolSet Pools; ///< index 0 of each is a hidden template
    /// The player's sprite; the layout has it between two cells, where it stays without a start.
    Sprite You{2280, 4560, TagNumber::None, true, Picture::None};

    Timer Interval100Timer{10, true}; ///< 10 milliseconds, whatever its name says
    std::int16_t TickCount = 0;       ///< 0 to 300
    float YouCol = 0;                 ///< the player's column, not rounded
    double YouRow = 0;                ///< the player's row, whole, as large as it need be
    std::int16_t GemTotal = 0;        ///< sprites of gems when the map was set up, template and all
    std::int16_t GemsLeft = 0;        ///< as of the last recount
    std::optional<std::int16_t>
        GemsShown; ///< what the status bar shows; none before its first time
    bool YouDead = false;
    bool MoveReady = false;                 ///< the player may take a step
    std::vector<std::int16_t> FactoryCount; ///< by index in the pool of factories, as long as that

    // What the last call gave out; no part of the state, so it does not count in comparisons.

    Outcome Result = Outcome::Running; ///< of the last tick
    WalkList Walks;                    ///< the steps made; the view follows by them

    friend bool operator==(const Board& a, const Board& b);
    /// Equal boards have equal hashes, on every host.
    std::uint64_t HashValue() const;

    // Set-up, in the order of the calls; the loader fills the pools before.

    /// Seeds the random numbers.
    void Randomize(std::uint32_t seed) { random.Seed(seed); }
    /// Takes the player's cell from the sprite.
    void YouStart();
    /// Gives the mines the pictures of their headings and counts the gems.
    void ResetArea();
    /// Stamps `Area` from the sprites, makes the board ready for play and seeds the random numbers.
    void ResetStart(std::uint32_t seed);

    // Play.

    /// One tick: all routines that are due at the next value of `TickCount`, with the arrow keys
    /// that are held. Nothing more of the tick runs once the map is won or the player is dead.
    Outcome Tick(HeldKeys held);
    /// The value of `TickCount` in the next tick. A cycle has 301 ticks: 300 and 0 are neighbours,
    /// and both are multiples of everything.
    std::int16_t NextTick() const { return TickCount < 300 ? To16(TickCount + 1) : To16(0); }
    /// Carries out a key: "w", "a", "s", "d" or "p"; other texts only restamp the gems.
    void MoveYou(std::string_view key);
    /// One period of the timer for a player's hands: the letters typed, one after the other, then
    /// a tick if the clock runs.
    Outcome Period(std::string_view letters, HeldKeys held);

    // The routines of the clock, in its order.

    void CheckGameEnd();
    void FactoryTick();
    void MineLTick();
    void MineFLTick();
    void MineRTick();
    void MineTTick();
    void RockTick();
    void GemTick();
    void BangTick();
    void PollArrowKeys(HeldKeys held);
    void ShowGemsRemaining() { GemsShown = GemsLeft; }
    void MinePPTick();
    void MinePTick();

    // Words that rules share. A sprite is named by its kind and its index in the kind's pool.

    /// Brings a sprite of a kind that has a pool, factories aside, into play at a position in
    /// twips, reusing the hidden sprite with the highest index if there is one. Only then is the
    /// cell in `Area` written. A full pool does nothing.
    void SpawnObject(Kind kind, float left, float top, Heading tag);
    /// A random picture for a new sprite of a kind that draws one; the first and the last member
    /// come half as often as the others. For other kinds nothing is drawn from the generator.
    void DrawPicture(Kind kind, int index);
    /// Moves a sprite by whole cells and its kind with it in `Area`.
    void MoveSprite(Kind kind, int index, Offset offset);
    /// Hides a sprite and empties its cell.
    void TakeAway(Kind kind, int index);
    /// Sets a mine's heading and the picture that shows it.
    void Turn(Kind kind, int index, Heading heading);
    /// Draws the side to which everything rolls in this call.
    RollSide DrawRollSide();
    /// Rolls a sprite to a side, if the cell there and the one below it are free.
    void Roll(Kind kind, int index, RollSide side);
    /// True when the player stands in one of the four neighbour cells.
    bool TouchesYou(const Sprite& sprite) const;
    /// The death of the player, which ends the tick.
    void YouDie() { Die(Outcome::Died); }
    void Die(Outcome road);
    /// Writes every visible sprite of a kind into `Area`.
    void Stamp(Kind kind);

  private:
    /// MoveYou without forgetting the steps before it.
    void Step(std::string_view key);

    Random random;
};

} // namespace tumbledeep
