// Rows are found by a hash of their place. Sorting is by digits: pools are large, and every look at
// the moved ones would pay for comparisons.
#include "world/SpotRun.h"

#include "world/Spot.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>

namespace tumbledeep {

namespace {

/// Rises with the place.
std::uint32_t Rank(float left) {
    constexpr std::uint32_t sign = 1U << 31U;
    const auto bits = std::bit_cast<std::uint32_t>(left);
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

} // namespace

SpotRun::Row* SpotRun::RowAt(std::uint64_t key) {
    for (Link row = chains[SpotChain(key, shift)]; row != None; row = rows[row].Next) {
        if (rows[row].Key == key) return &rows[row];
    }
    return nullptr;
}

SpotRun::Link SpotRun::MakeRowAt(std::uint64_t key) {
    if (const Row* const row = RowAt(key)) return static_cast<Link>(row - rows.data());
    Link& first = chains[SpotChain(key, shift)];
    rows.push_back({key, 0, 0, first});
    return first = static_cast<Link>(rows.size() - 1);
}

void SpotRun::Make(std::span<const Sprite> sprites, bool hiddenToo) {
    shift = ChainShift(sprites.size());
    chains.assign(std::size_t{1} << static_cast<unsigned>(64 - shift), None);
    rows.clear();
    stands.clear();
    for (std::size_t i = 0; i < sprites.size(); ++i) {
        const Sprite& sprite = sprites[i];
        if (!sprite.Visible && !hiddenToo) continue;
        const Link row = MakeRowAt(SpotKey(TwipBefore(sprite.Left), sprite.Top));
        ++rows[row].Last;
        stands.push_back({sprite.Left, static_cast<Link>(i), row});
    }
    spare.resize(stands.size());
    SortFromLeft();
    PutIntoRows();
    if (hiddenToo) NoteHighest();
}

void SpotRun::SortFromLeft() {
    constexpr unsigned bits = 11;
    constexpr std::uint32_t digits = 1U << bits;
    for (unsigned low = 0; low < 32; low += bits) {
        const auto digit = [low](const Stand& stand) {
            return Rank(stand.Left) >> low & (digits - 1);
        };
        std::array<std::uint32_t, digits + 1> starts{};
        for (const Stand& stand : stands) ++starts[digit(stand) + 1];
        if (starts.at(digit(stands.front()) + 1) == stands.size()) continue;
        std::partial_sum(starts.begin(), starts.end(), starts.begin());
        for (const Stand& stand : stands) spare[starts[digit(stand)]++] = stand;
        stands.swap(spare);
    }
}

void SpotRun::PutIntoRows() {
    Link first = 0;
    for (Row& row : rows) {
        const Link count = row.Last;
        row.First = row.Last = first;
        first = static_cast<Link>(first + count);
    }
    for (const Stand& stand : stands) spare[rows[stand.RowOf].Last++] = stand;
    stands.swap(spare);
}

void SpotRun::NoteHighest() {
    highest.resize(stands.size());
    for (const Row& row : rows) {
        Link upTo = 0;
        for (std::size_t i = row.First; i < row.Last; ++i) {
            highest[i].UpTo = upTo = std::max(upTo, stands[i].Index);
        }
        Link from = 0;
        for (std::size_t i = row.Last; i-- > row.First;) {
            highest[i].From = from = std::max(from, stands[i].Index);
        }
    }
}

void SpotRun::Find(std::span<const Sprite> sprites, Wanted wanted, float left, float top,
                   std::vector<int>& found) {
    const int before = TwipBefore(left);
    for (const int twip : {before - 1, before, before + 1}) {
        Row* const row = RowAt(SpotKey(twip, top));
        if (row == nullptr) continue;
        if (wanted == Wanted::Visible) {
            TakeVisible(sprites, *row, left, found);
        } else {
            TakeAll(*row, left, wanted, found);
        }
    }
}

void SpotRun::TakeVisible(std::span<const Sprite> sprites, Row& row, float left,
                          std::vector<int>& found) const {
    const auto isVisible = [&](const Stand& stand) { return sprites[stand.Index].Visible; };
    const auto takeOrPass = [&](const Stand& stand) {
        if (!IsBeside(stand.Left, left)) return false;
        if (isVisible(stand)) found.push_back(stand.Index);
        return true;
    };
    // What is hidden at the ends is out of the way for good; most often all that was found is next.
    while (row.First < row.Last && !isVisible(stands[row.First])) ++row.First;
    while (row.First < row.Last && !isVisible(stands[row.Last - 1U])) --row.Last;
    unsigned first = row.First;
    while (first < row.Last && takeOrPass(stands[first])) ++first;
    unsigned last = row.Last;
    while (first < last && takeOrPass(stands[last - 1])) --last;
}

void SpotRun::TakeAll(const Row& row, float left, Wanted wanted, std::vector<int>& found) const {
    const auto isBeside = [left](const Stand& stand) { return IsBeside(stand.Left, left); };
    auto first = stands.begin() + row.First;
    auto last = stands.begin() + row.Last;
    const bool fromFirst = isBeside(*first);
    const bool toLast = isBeside(last[-1]);
    if (!fromFirst && !toLast) return;
    if (!fromFirst) first = std::partition_point(first, last, std::not_fn(isBeside));
    if (!toLast) last = std::partition_point(first, last, isBeside);
    if (wanted == Wanted::All) {
        for (; first != last; ++first) found.push_back(first->Index);
        return;
    }
    const auto number = [this](auto stand) {
        return static_cast<std::size_t>(stand - stands.begin());
    };
    const Link top = fromFirst ? highest[number(last) - 1].UpTo : highest[number(first)].From;
    found.insert(found.end(), {first->Index, last[-1].Index, top});
}

} // namespace tumbledeep
