// How a pool keeps tags as numbers, the scans over its sprites, and its comparison and hash. How
// sprites are kept and changed is in the header.
#include "world/Pool.h"

#include "base/Hash.h"
#include "world/Kind.h"

#include <algorithm>

namespace tumbledeep {

namespace {

constexpr auto FirstText = static_cast<std::size_t>(TagNumber::FirstText);
/// An equal text among the first ones of the pool is used again. Looking through all of them would
/// make a map of many different recipes slow to load.
constexpr std::size_t TextsCompared = 64;

// For a sprite between two cells, how far the cell a step away lies from where the step leads: two
// bits with a sign for each step of an axis, from -1 to 2 without 0.
constexpr unsigned FirstCorrection = 1U << 18U; ///< beyond the number of any cell
constexpr unsigned ColBits = 18;
constexpr unsigned RowBits = 24;

constexpr unsigned ShiftOf(unsigned axis, int step) {
    return axis + 2U * static_cast<unsigned>(step < 0 ? 0 : step);
}

int Correction(unsigned cell, unsigned axis, int step) {
    if (step == 0) return 0;
    const auto bits = static_cast<int>(cell >> ShiftOf(axis, step) & 3U);
    return (bits ^ 2) - 2;
}

unsigned Corrections(float twips, int nearest, unsigned axis) {
    unsigned all = 0;
    for (const int step : {-1, 1, 2}) {
        const int off = GridIndex(GridPlace(twips, step)) - (nearest + step);
        // Far outside the grid all cells are alike.
        if (off == 1 || off == -1) all |= (static_cast<unsigned>(off) & 3U) << ShiftOf(axis, step);
    }
    return all;
}

} // namespace

Pool::Pool(const KindRow& row)
    : upPic(row.UpPic),
      sprites{{row.TemplateLeft, row.TemplateTop, TagNumber::None, false, row.Template}},
      cells{HiddenBit} {
    hidden.Insert(0);
    Settle(0);
}

int Pool::Add() {
    Sprite added = sprites.front();
    added.Visible = false;
    sprites.push_back(added);
    cells.push_back(cells.front() | HiddenBit);
    const int index = Count() - 1;
    hidden.Insert(index);
    allSpots.Forget();
    NoteChange(index);
    return index;
}

std::string_view Pool::TextOf(TagNumber tag) const {
    if (tag == TagNumber::None) return "";
    if (const auto heading = HeadingNumbered(tag)) return HeadingLetters[Index(*heading)];
    return texts[static_cast<std::size_t>(tag) - FirstText];
}

std::string_view Pool::TagText(int index) const { return TextOf((*this)[index].Tag); }

void Pool::SetTag(int index, std::string_view text) {
    if (text.empty()) {
        At(index).Tag = TagNumber::None;
        return;
    }
    if (const auto heading = HeadingNamed(text)) return SetHeading(index, *heading);
    const auto last =
        texts.begin() + static_cast<std::ptrdiff_t>(std::min(texts.size(), TextsCompared));
    auto found = std::find(texts.begin(), last, text);
    if (found == last) found = texts.insert(texts.end(), std::string(text));
    At(index).Tag =
        static_cast<TagNumber>(FirstText + static_cast<std::size_t>(found - texts.begin()));
}

void Pool::Put(int index, float left, float top) {
    At(index).Left = left;
    At(index).Top = top;
    Settle(index);
}

Cell Pool::CorrectedCell(unsigned cell, Offset offset) {
    return Cell::Numbered(cell % FirstCorrection) + offset +
           Offset{Correction(cell, ColBits, offset.Col), Correction(cell, RowBits, offset.Row)};
}

void Pool::Settle(int index) {
    const Sprite& sprite = (*this)[index];
    unsigned& cell = CellWord(index);
    const float col = GridPlace(sprite.Left);
    const float row = GridPlace(sprite.Top);
    const float wholeCol = RoundToEven(col);
    const float wholeRow = RoundToEven(row);
    const int nearestCol = WholeIndex(wholeCol);
    const int nearestRow = WholeIndex(wholeRow);
    cell = Cell(nearestCol, nearestRow).Number() | (cell & HiddenBit);
    if (IsBetween(col, wholeCol) || IsBetween(row, wholeRow)) {
        cell |= BetweenBit | Corrections(sprite.Left, nearestCol, ColBits) |
                Corrections(sprite.Top, nearestRow, RowBits);
    }
    ForgetSpots();
}

std::span<const int> Pool::VisibleAt(float left, float top) {
    if (!visibleSpots.IsMade()) visibleSpots.Make(sprites, false);
    lookedUp.clear();
    visibleSpots.Find(sprites, Wanted::Visible, left, top, lookedUp);
    return lookedUp;
}

std::span<const int> Pool::AllAt(float left, float top) {
    if (!allSpots.IsMade()) allSpots.Make(sprites, true);
    lookedUp.clear();
    allSpots.Find(sprites, Wanted::All, left, top, lookedUp);
    return lookedUp;
}

std::span<const int> Pool::FewAt(float left, float top) {
    VisibleAt(left, top);
    if (!allSpots.IsMade()) allSpots.Make(sprites, true);
    // Less than 2 twips have two cells at most: those of the leftmost and the rightmost.
    allSpots.Find(sprites, Wanted::Few, left, top, lookedUp);
    std::sort(lookedUp.begin(), lookedUp.end());
    lookedUp.erase(std::unique(lookedUp.begin(), lookedUp.end()), lookedUp.end());
    return lookedUp;
}

void Pool::AddTo(Hash& hash) const {
    hash.Add(sprites.size());
    for (const Sprite& sprite : sprites) {
        hash.Add(std::uint64_t{std::bit_cast<std::uint32_t>(sprite.Left)} << 32U |
                 std::bit_cast<std::uint32_t>(sprite.Top));
        hash.Add((static_cast<unsigned>(sprite.Look) << 1U) | unsigned{sprite.Visible});
        // A text has its number by the order in which texts came in, so the text itself counts.
        const auto tag = static_cast<std::size_t>(sprite.Tag);
        tag < FirstText ? hash.Add(tag) : hash.Add(TextOf(sprite.Tag));
    }
}

bool operator==(const Pool& a, const Pool& b) {
    // Beyond those that are looked through, a text may be kept twice under two numbers.
    if (a.texts == b.texts && a.texts.size() <= TextsCompared) return a.sprites == b.sprites;
    for (int i = 0; i < std::min(a.Count(), b.Count()); ++i) {
        Sprite own = a[i];
        own.Tag = b[i].Tag;
        if (own != b[i] || a.TagText(i) != b.TagText(i)) return false;
    }
    return a.Count() == b.Count();
}

} // namespace tumbledeep
