// A hash table of chains. Places that a whole number of twips tells apart lie in chains of their
// own, as nearly all do; the others share one with all those up to the next whole twip.
#include "world/SpotIndex.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace tumbledeep {

namespace {

/// Less than 1 twip apart, reckoned as the rules do.
bool IsAt(const Sprite& sprite, float left, float top) {
    return sprite.Top == top && sprite.Left - 1.0F < left && left < sprite.Left + 1.0F;
}

bool IsWhole(float left) { return std::floor(left) == left; }

/// A number by its bits, both zeros alike.
std::uint64_t Bits(float number) { return std::bit_cast<std::uint32_t>(number + 0.0F); }

} // namespace

SpotIndex::Link* SpotIndex::Chain(float left, float top, bool whole) {
    std::uint64_t hash = (Bits(std::floor(left)) << 32U | Bits(top)) + (whole ? 0U : 1U);
    hash = (hash ^ hash >> 29U) * 0x9E3779B97F4A7C15U;
    return &chains[static_cast<std::size_t>(hash >> shift)];
}

void SpotIndex::Make(std::span<const Sprite> sprites, bool hiddenToo) {
    const unsigned bits = std::max(1U, static_cast<unsigned>(std::bit_width(sprites.size())));
    shift = static_cast<int>(64U - bits);
    chains.assign(std::size_t{1} << bits, None);
    next.resize(sprites.size());
    anyBetween = false;
    // From the last sprite to the first, each put before those of its chain: so they rise.
    for (std::size_t i = sprites.size(); i-- > 0;) {
        const Sprite& sprite = sprites[i];
        if (!sprite.Visible && !hiddenToo) continue;
        const bool whole = IsWhole(sprite.Left);
        anyBetween |= !whole;
        Link* const first = Chain(sprite.Left, sprite.Top, whole);
        next[i] = *first;
        *first = static_cast<Link>(i);
    }
    made = true;
}

void SpotIndex::Find(std::span<const Sprite> sprites, bool hiddenToo, float left, float top,
                     std::vector<int>& found) {
    const float low = std::floor(left);
    const float high = std::ceil(left);
    const auto follow = [&](float at, bool whole) {
        Follow(Chain(at, top, whole), sprites, hiddenToo, left, top, found);
    };
    follow(low, true);
    if (high == low && !anyBetween) return;
    if (high != low) follow(high, true);
    if (anyBetween) {
        for (const float twip : {low - 1.0F, low, low + 1.0F}) follow(twip, false);
    }
    // Some of these can be one chain.
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
}

void SpotIndex::Follow(Link* link, std::span<const Sprite> sprites, bool hiddenToo, float left,
                       float top, std::vector<int>& found) {
    while (*link != None) {
        const std::size_t index = *link;
        if (!sprites[index].Visible && !hiddenToo) {
            *link = next[index];
            continue;
        }
        if (IsAt(sprites[index], left, top)) found.push_back(static_cast<int>(index));
        link = &next[index];
    }
}

} // namespace tumbledeep
