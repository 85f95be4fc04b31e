// A growable row of sprites of one kind. Rules read it freely and change a sprite by the words
// below alone, so that what is reckoned from the sprites can be kept beside them.
#pragma once

#include "world/Heading.h"
#include "world/Picture.h"

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

class Hash;
struct KindRow;

/// A tag by number: none, a heading's letter, or another text that the pool keeps.
enum class TagNumber : std::uint16_t { None };

/// One sprite as a pool keeps it. `Left` and `Top` are twips on the board.
struct Sprite {
    float Left = 0.0F;
    float Top = 0.0F;
    TagNumber Tag = TagNumber::None;
    bool Visible = false;
    tumbledeep::Picture Look = Picture::None;

    /// By the bits: minus zero is another place than zero.
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

    /// The number of sprites, hidden ones and the template included. It never falls.
    int Count() const { return static_cast<int>(sprites.size()); }
    bool Full() const { return Count() >= Limit; }

    const Sprite& operator[](int index) const { return sprites[static_cast<std::size_t>(index)]; }
    auto begin() const { return sprites.begin(); }
    auto end() const { return sprites.end(); }

    /// The heading in a sprite's tag; none if the tag is anything else.
    std::optional<Heading> HeadingOf(int index) const;
    std::string_view TagText(int index) const;

    /// Adds the sprite with the next index, a hidden copy of the template, and returns its index.
    /// The pool must not be full.
    int Add();

    // The words that change a sprite.

    void PutLeft(int index, float left) { At(index).Left = left; }
    void PutTop(int index, float top) { At(index).Top = top; }
    void Move(int index, Offset offset) { ShiftByCells(At(index), offset); }
    void Show(int index) { At(index).Visible = true; }
    void Hide(int index) { At(index).Visible = false; }
    void Dress(int index, Picture look) { At(index).Look = look; }
    void SetHeading(int index, Heading heading);
    /// Any text, as a map has it.
    void SetTag(int index, std::string_view text);

    // What scans find.

    /// The highest index of a hidden sprite, -1 when all are visible.
    int LastHidden() const;
    /// How many sprites are hidden, the template among them.
    int HiddenCount() const;
    /// The first index from `from` on whose sprite stands at `top` exactly and within 1 twip of
    /// `left`, visible or not; Count() when there is none.
    int NextAt(int from, float left, float top) const;

    /// The turns of a routine of the clock: the index of each visible sprite in rising order. The
    /// count is read once, so a sprite added meanwhile has no turn; one hidden or brought back
    /// meanwhile counts as it is when its index comes up.
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
    Sprite& At(int index) { return sprites[static_cast<std::size_t>(index)]; }
    std::string_view TextOf(TagNumber tag) const;

    std::vector<Sprite> sprites;
    std::vector<std::string> texts; ///< the tags that are no heading
};

} // namespace tumbledeep
