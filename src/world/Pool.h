// A pool: the growable row of sprites of one kind, from a hidden template at index 0. Rules read
// the sprites freely and change one only by the functions below, so that a pool can keep more
// beside the sprites, such as an index of them, and know when it changes. Pools know nothing of the
// grid: a rule that moves a sprite writes the cells too, mostly by way of Board::MoveSprite.
#pragma once

#include "world/Heading.h"
#include "world/Picture.h"

#include <bit>
#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tumbledeep {

class Hash;
struct KindRow;

/// The tag of a sprite by number: none, a heading's letter, or a text that the pool keeps. Only
/// that pool can tell the text; see TagText.
enum class TagNumber : std::uint16_t { None };

/// One sprite as a pool keeps it.
struct Sprite {
    float Left = 0.0F; ///< in twips on the board, as is `Top`
    float Top = 0.0F;
    TagNumber Tag = TagNumber::None;
    bool Visible = false; ///< in play; a hidden sprite is gone, or was never there
    Picture Look = Picture::None;

    /// Positions compare by their bits: minus zero is another place than zero. Only sprites of one
    /// pool can be compared, as another pool may number its tags otherwise.
    friend bool operator==(const Sprite& a, const Sprite& b) {
        const auto bits = [](float value) { return std::bit_cast<std::uint32_t>(value); };
        return bits(a.Left) == bits(b.Left) && bits(a.Top) == bits(b.Top) && a.Tag == b.Tag &&
               a.Visible == b.Visible && a.Look == b.Look;
    }
};

class Pool {
  public:
    /// The most sprites that a pool can hold, the template included: indexes have 16 bits.
    static constexpr int Limit = 32767;

    /// A pool of one hidden sprite, the template at index 0.
    explicit Pool(const KindRow& row);

    /// How many sprites there are, hidden ones and the template included. It never falls.
    int Count() const { return static_cast<int>(sprites.size()); }
    bool Full() const { return Count() >= Limit; }

    /// The sprite at an index from 0 to Count() - 1. The reference is good until the next Add.
    const Sprite& operator[](int index) const { return sprites[static_cast<std::size_t>(index)]; }
    auto begin() const { return sprites.begin(); }
    auto end() const { return sprites.end(); }

    /// The heading in a sprite's tag; none if the tag is anything else.
    std::optional<Heading> HeadingOf(int index) const;
    /// A sprite's tag as a text, "" without one. Good until the next SetTag.
    std::string_view TagText(int index) const;

    /// Adds the sprite with the next index, a hidden copy of the template, and returns its index.
    /// The pool must not be full.
    int Add();

    // What changes a sprite. Positions are in twips.

    void PutLeft(int index, float left) { At(index).Left = left; }
    void PutTop(int index, float top) { At(index).Top = top; }
    void Move(int index, Offset offset) { ShiftByCells(At(index), offset); }
    void Show(int index) { At(index).Visible = true; }
    void Hide(int index) { At(index).Visible = false; }
    void Dress(int index, Picture look) { At(index).Look = look; }
    void SetHeading(int index, Heading heading);
    /// Sets the tag to any text: the letter of a heading, a recipe, "" for none.
    void SetTag(int index, std::string_view text);

    /// Sprites to a chunk, the unit in which changes are noted: the first chunk is index 0 to 63.
    static constexpr int ChunkSize = 64;
    using Chunks = std::bitset<Limit / ChunkSize + 1>;
    /// The chunks in which a sprite has been changed or added since the last call, for a window
    /// that shows the pool. It is no part of the state and does not count in comparisons.
    Chunks TakeChanges() { return std::exchange(changed, {}); }

    // Scans. Each costs time in proportion to the pool.

    /// The highest index of a hidden sprite, -1 when all are visible.
    int LastHidden() const;
    /// How many sprites are hidden, the template among them.
    int HiddenCount() const;
    /// The first index from `from` on whose sprite stands at `top` exactly and less than 1 twip
    /// from `left`, visible or not; Count() when there is none.
    int NextAt(int from, float left, float top) const;

    /// The turns of a routine of the clock: the index of each visible sprite, rising. The count is
    /// read once, so a sprite added meanwhile has no turn. Whether a sprite is visible is asked
    /// when its index comes up, so one that is shown or hidden meanwhile still gains or loses it.
    class Turns {
      public:
        class Iterator {
          public:
            Iterator(const Pool& pool, int at, int count) : of(&pool), index(at), last(count) {
                PassHidden();
            }
            int operator*() const { return index; }
            Iterator& operator++() {
                ++index;
                PassHidden();
                return *this;
            }
            bool operator!=(const Iterator& other) const { return index != other.index; }

          private:
            void PassHidden() {
                while (index < last && !(*of)[index].Visible) ++index;
            }
            const Pool* of;
            int index;
            int last;
        };
        explicit Turns(const Pool& pool) : of(pool), count(pool.Count()) {}
        Iterator begin() const { return {of, 0, count}; }
        Iterator end() const { return {of, count, count}; }

      private:
        const Pool& of;
        int count;
    };
    Turns InTurn() const { return Turns(*this); }

    void AddTo(Hash& hash) const;
    friend bool operator==(const Pool& a, const Pool& b);

  private:
    /// The sprite to be changed.
    Sprite& At(int index) {
        changed.set(static_cast<std::size_t>(index / ChunkSize));
        return sprites[static_cast<std::size_t>(index)];
    }
    std::string_view TextOf(TagNumber tag) const;

    std::vector<Sprite> sprites;
    Chunks changed{1};              // the template is new
    std::vector<std::string> texts; ///< tags that are no heading, by TagNumber from 5 on
};

} // namespace tumbledeep
