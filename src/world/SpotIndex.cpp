// A hash table of chains. Places that a whole number of twips tells apart lie in chains of their
// own, as nearly all do; the others share one with all those up to the next whole twip. Where that
// makes a crowd, SpotRun.h takes over.
#include "world/SpotIndex.h"

#include "world/Spot.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tumbledeep {

namespace {

/// Sorts indexes of a pool. Of many, a bit for each is quicker than comparisons.
void SortRising(std::vector<int>& indexes) {
    constexpr std::size_t few = 64;
    if (indexes.size() < few) return std::sort(indexes.begin(), indexes.end());
    std::array<std::uint64_t, 512> words{};
    for (const int index : indexes) {
        const auto bit = static_cast<std::size_t>(index);
        words.at(bit / 64) |= std::uint64_t{1} << bit % 64;
    }
    indexes.clear();
    for (std::size_t i = 0; i < words.size(); ++i) {
        for (std::uint64_t bits = words.at(i); bits != 0; bits &= bits - 1) {
            indexes.push_back(static_cast<int>(i) * 64 + std::countr_zero(bits));
        }
    }
}

} // namespace

SpotIndex::Link* SpotIndex::Chain(int twip, bool between, float top) {
    return &chains[SpotChain(SpotKey(twip, top) ^ (between ? 1U : 0U), shift)];
}

void SpotIndex::Make(std::span<const Sprite> sprites, bool hiddenToo) {
    made = true;
    withHidden = hiddenToo;
    runMade = false;
    anyBetween = false;
    shift = ChainShift(sprites.size());
    chains.assign(std::size_t{1} << static_cast<unsigned>(64 - shift), None);
    next.resize(sprites.size());
    for (std::size_t i = 0; i < sprites.size(); ++i) {
        const Sprite& sprite = sprites[i];
        if (!sprite.Visible && !hiddenToo) continue;
        const int twip = TwipBefore(sprite.Left);
        const bool between = static_cast<float>(twip) != sprite.Left;
        anyBetween |= between;
        Link* const first = Chain(twip, between, sprite.Top);
        next[i] = *first;
        *first = static_cast<Link>(i);
    }
}

void SpotIndex::Find(std::span<const Sprite> sprites, Wanted wanted, float left, float top,
                     std::vector<int>& found) {
    if (anyBetween && (runMade || wanted == Wanted::Few)) {
        if (!std::exchange(runMade, true)) run.Make(sprites, withHidden);
        run.Find(sprites, wanted, left, top, found);
        return SortRising(found);
    }
    const int before = TwipBefore(left);
    const bool whole = static_cast<float>(before) == left;
    int inVain = Follow(Chain(before, false, top), sprites, wanted, left, top, found);
    if (whole && !anyBetween) return std::reverse(found.begin(), found.end());
    if (!whole) inVain += Follow(Chain(before + 1, false, top), sprites, wanted, left, top, found);
    if (anyBetween) {
        for (const int twip : {before - 1, before, before + 1}) {
            inVain += Follow(Chain(twip, true, top), sprites, wanted, left, top, found);
        }
    }
    SortRising(found);
    // Some of the chains can be one and the same.
    found.erase(std::unique(found.begin(), found.end()), found.end());
    constexpr int tooMany = 200;
    if (inVain > tooMany && anyBetween) {
        run.Make(sprites, withHidden);
        runMade = true;
    }
}

int SpotIndex::Follow(Link* link, std::span<const Sprite> sprites, Wanted wanted, float left,
                      float top, std::vector<int>& found) {
    int inVain = 0;
    while (*link != None) {
        const Sprite& sprite = sprites[*link];
        if (!sprite.Visible && wanted == Wanted::Visible) {
            *link = next[*link];
            continue;
        }
        const bool isThere = sprite.Top == top && IsBeside(sprite.Left, left);
        inVain += !isThere;
        if (isThere) found.push_back(*link);
        if (isThere && wanted == Wanted::Few) break;
        link = &next[*link];
    }
    return inVain;
}

} // namespace tumbledeep
