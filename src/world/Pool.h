// A pool: the growable row of sprites of one kind, from a hidden template at index 0. Rules read
// the sprites freely and change one only by the functions below, so that the pool can keep their
// cells, the hidden ones and an index by place beside them, and no rule needs to look through it.
// Pools know nothing of what the grid holds: a rule that moves a sprite writes the cells too,
// mostly by way of Board::MoveSprite.
#pragma once

#include "world/Heading.h"
#include "world/IndexSet.h"
#include "world/SpotIndex.h"
#include "world/Sprite.h"

#include <bitset>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tumbledeep {

class Hash;
struct KindRow;

class Pool {
  public:
    /// The most sprites that a pool can hold, the template included: indexes have 16 bits.
    static constexpr int Limit = 32767;

    /// A pool of one hidden sprite, the template at index 0.
    explicit Pool(const KindRow& row);

    /// How many sprites there are, hidden ones and the template included. It never falls.
    int Count() const { return static_cast<int>(sprites.size()); }
    bool Full() const { return Count() >= Limit; }
    /// No sprite is hidden, and none can be added.
    bool Spent() const { return Full() && HiddenCount() == 0; }

    /// The sprite at an index from 0 to Count() - 1. The reference is good until the next Add.
    const Sprite& operator[](int index) const { return sprites[static_cast<std::size_t>(index)]; }
    auto begin() const { return sprites.begin(); }
    auto end() const { return sprites.end(); }

    /// The cell of a sprite, or one near it: up to two below and one in the other ways. As CellOf
    /// in Cell.h gives it, but without reckoning.
    Cell CellOf(int index, Offset offset = Here) const {
        const unsigned cell = cells[static_cast<std::size_t>(index)] & ~HiddenBit;
        if (cell >= BetweenBit) return CorrectedCell(cell, offset);
        return Cell::Numbered(cell) + offset;
    }
    /// The heading in a sprite's tag; none if the tag is anything else.
    std::optional<Heading> HeadingOf(int index) const {
        return HeadingNumbered((*this)[index].Tag);
    }
    /// A sprite's tag as a text, "" without one. Good until the next SetTag.
    std::string_view TagText(int index) const;

    /// Adds the sprite with the next index, a hidden copy of the template, and returns its index.
    /// The pool must not be full.
    int Add();

    /// Whether a sprite lies so between two cells that a step can lead from its cell to another
    /// than the next one.
    bool LiesBetween(int index) const {
        return (cells[static_cast<std::size_t>(index)] & BetweenBit) != 0;
    }
    /// The numbers of all sprites' cells by index, for loops that cannot ask for each. Numbers that
    /// no cell has stand for sprites that are hidden or lie between cells.
    std::span<const unsigned> CellNumbers() const { return cells; }
    static constexpr bool IsHiddenCell(unsigned number) { return (number & HiddenBit) != 0; }

    // What changes a sprite. Positions are in twips.

    void Put(int index, float left, float top);
    void Move(int index, Offset offset) {
        unsigned& cell = CellWord(index);
        ShiftByCells(At(index), offset);
        ForgetSpots();
        // On the grid a sprite keeps its place within its cell, but for some hundredths of a twip:
        // a sum is rounded once to each power of two at most, however far the sprite goes.
        const Cell from = Cell::Numbered(cell & ~HiddenBit);
        if (!from.InGrid()) return Settle(index);
        cell = (from + offset).Number() | (cell & HiddenBit);
    }
    void Show(int index) {
        At(index).Visible = true;
        CellWord(index) &= ~HiddenBit;
        hidden.Erase(index);
        visibleSpots.Forget();
    }
    void Hide(int index) {
        At(index).Visible = false;
        CellWord(index) |= HiddenBit;
        hidden.Insert(index);
    }
    void Dress(int index, Picture look) { At(index).Look = look; }
    void SetHeading(int index, Heading heading) { At(index).Tag = NumberOf(heading); }
    /// Sets a mine's heading and the picture that shows it. For kinds that show their heading.
    void Turn(int index, Heading heading) {
        Sprite& sprite = At(index);
        sprite.Tag = NumberOf(heading);
        sprite.Look = HeadingPicture(upPic, heading);
    }
    /// Sets the tag to any text: the letter of a heading, a recipe, "" for none.
    void SetTag(int index, std::string_view text);

    /// Sprites to a chunk, the unit in which changes are noted: the first chunk is index 0 to 63.
    static constexpr int ChunkSize = 64;
    using Chunks = std::bitset<Limit / ChunkSize + 1>;
    /// The chunks in which a sprite has been changed or added since the last call, for a window
    /// that shows the pool. It is no part of the state and does not count in comparisons.
    Chunks TakeChanges() { return std::exchange(changed, {}); }

    // What would take a look through the pool, at hand.

    /// The highest index of a hidden sprite, -1 when all are visible.
    int LastHidden() const { return hidden.Last(); }
    /// How many sprites are hidden, the template among them.
    int HiddenCount() const { return hidden.Count(); }
    /// The indexes, rising, of the sprites that stand at `top` exactly and less than 1 twip from
    /// `left`: all that are visible. Good until the next call of this or AllAt.
    std::span<const int> VisibleAt(float left, float top);
    /// The same with the hidden ones.
    std::span<const int> AllAt(float left, float top);
    /// Of AllAt the visible ones and a few more, rising: the one with the highest index, and at
    /// least one on each cell where any stands.
    std::span<const int> FewAt(float left, float top);

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
                const auto isHidden = [this] {
                    return IsHiddenCell(of->cells[static_cast<std::size_t>(index)]);
                };
                while (index < last && isHidden()) ++index;
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
        NoteChange(index);
        return sprites[static_cast<std::size_t>(index)];
    }
    std::string_view TextOf(TagNumber tag) const;

    void NoteChange(int index) { changed[static_cast<std::size_t>(index) / ChunkSize] = true; }
    /// The same for a sprite that lies between two cells, by what is kept of it.
    static Cell CorrectedCell(unsigned cell, Offset offset);
    unsigned& CellWord(int index) { return cells[static_cast<std::size_t>(index)]; }
    void ForgetSpots() {
        visibleSpots.Forget();
        allSpots.Forget();
    }
    /// Keeps the cell after a change of place, and gives up the indexes by place.
    void Settle(int index);

    // Beside a cell's number, where `cells` keeps it.
    static constexpr unsigned HiddenBit = 1U << 31U;
    static constexpr unsigned BetweenBit = 1U << 30U; ///< see IsBetween; corrections are below it

    Picture upPic; ///< the first of the four pictures by heading, None where there are none
    std::vector<Sprite> sprites;
    std::vector<unsigned> cells; ///< by index: what a turn asks first, close together
    IndexSet hidden;
    SpotIndex visibleSpots;
    SpotIndex allSpots;
    std::vector<int> lookedUp;      ///< the answer to the last look-up by place
    Chunks changed{1};              // the template is new
    std::vector<std::string> texts; ///< tags that are no heading, by TagNumber from 5 on
};

} // namespace tumbledeep
