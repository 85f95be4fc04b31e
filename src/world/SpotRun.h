// Finds sprites like SpotIndex.h, for pools in which some stand at fractions of a twip: there may
// be tens of thousands of places within a twip, and one look after another beside them. Those of
// one twip and one top lie in a row from left to right. What stands less than 1 twip from a place
// is an end of such a row or all of it: what is in its middle alone would have more than 1 twip of
// the row on either side. So a look passes over nothing that it does not find.
#pragma once

#include "world/Sprite.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tumbledeep {

/// What of the sprites near a place a look is for.
enum class Wanted : std::uint8_t {
    Visible,
    All,
    Few, ///< the one with the highest index, a leftmost and a rightmost one, and no more of a crowd
};

class SpotRun {
  public:
    /// Puts in the visible sprites, or all.
    void Make(std::span<const Sprite> sprites, bool hiddenToo);

    /// As SpotIndex does it, but in any order, and some of a few come twice.
    void Find(std::span<const Sprite> sprites, Wanted wanted, float left, float top,
              std::vector<int>& found);

  private:
    using Link = std::uint16_t;
    static constexpr Link None = 0xFFFF;

    /// The sprites from one whole twip to the next, at one top.
    struct Row {
        std::uint64_t Key;
        Link First; ///< in `stands`
        Link Last;  ///< the one behind
        Link Next;  ///< the next row of the same chain
    };
    struct Stand {
        float Left;
        Link Index; ///< in the pool
        Link RowOf;
    };
    /// The highest index of a row from its first stand up to one, and from that one on.
    struct Highest {
        Link UpTo;
        Link From;
    };

    void TakeVisible(std::span<const Sprite> sprites, Row& row, float left,
                     std::vector<int>& found) const;
    void TakeAll(const Row& row, float left, Wanted wanted, std::vector<int>& found) const;
    Row* RowAt(std::uint64_t key);
    Link MakeRowAt(std::uint64_t key);
    void SortFromLeft();
    void PutIntoRows();
    void NoteHighest();

    int shift = 0;
    std::vector<Link> chains; ///< first row of each
    std::vector<Row> rows;
    std::vector<Stand> stands;
    std::vector<Stand> spare;     ///< room to sort in
    std::vector<Highest> highest; ///< by stand, if hidden ones are in
};

} // namespace tumbledeep
