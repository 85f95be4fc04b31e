// Finds the sprites at a place in twips without looking through the pool. It is made when it is
// first asked for and thrown away when sprites move: many ticks need none, and what moves together
// is cheaper to put in anew than to follow one by one. The pool it belongs to says when it is
// stale.
#pragma once

#include "world/SpotRun.h"
#include "world/Sprite.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tumbledeep {

class SpotIndex {
  public:
    SpotIndex() = default;
    ~SpotIndex() = default;
    // A copy is made anew when it is first asked for, so that pools copy quickly.
    SpotIndex(const SpotIndex& /*other*/) {}
    SpotIndex& operator=(const SpotIndex& /*other*/) {
        Forget();
        return *this;
    }
    SpotIndex(SpotIndex&&) = default;
    SpotIndex& operator=(SpotIndex&&) = default;

    bool IsMade() const { return made; }
    /// The memory is kept, as the next index will need as much.
    void Forget() { made = false; }

    /// Puts in the visible sprites, or all. Only those that are in can be wanted.
    void Make(std::span<const Sprite> sprites, bool hiddenToo);

    /// Appends the indexes, rising, of the sprites that stand at `top` exactly and less than 1 twip
    /// from `left`. Of Wanted::Visible, those that are hidden by now are forgotten.
    void Find(std::span<const Sprite> sprites, Wanted wanted, float left, float top,
              std::vector<int>& found);

  private:
    using Link = std::uint16_t; ///< an index of the pool
    static constexpr Link None = 0xFFFF;

    /// Where the chain begins for sprites at a whole twip from the left, or between it and the
    /// next.
    Link* Chain(int twip, bool between, float top);
    /// The search through one chain. Returns how many were passed that are not wanted.
    int Follow(Link* link, std::span<const Sprite> sprites, Wanted wanted, float left, float top,
               std::vector<int>& found);

    bool made = false;
    bool withHidden = false;
    bool anyBetween = false;  ///< a sprite stands at no whole twip from the left
    bool runMade = false;     ///< `run` has what the chains have
    int shift = 0;            ///< what of a hash tells its chain
    std::vector<Link> chains; ///< last index of each, by the hash of a place
    std::vector<Link> next;   ///< by index: the next one of the same chain, lower than this
    SpotRun run;              ///< made when the chains have turned out long
};

} // namespace tumbledeep
