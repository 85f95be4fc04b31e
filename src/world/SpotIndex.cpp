// A hash table of chains. Places that a whole number of twips tells apart lie in chains of their
// own, as nearly all do; the others share one with all those up to the next whole twip.
#include "world/SpotIndex.h"

#include <algorithm>
#include <array>
#include <bit>

namespace tumbledeep {

namespace {

/// Less than 1 twip apart, reckoned as the rules do.
bool IsAt(const Sprite& sprite, float left, float top) {
    return sprite.Top == top && sprite.Left - 1.0F < left && left < sprite.Left + 1.0F;
}

/// The whole twip at or before a place. All places too far out for an int to hold share one.
int TwipBefore(float left) {
    constexpr float farthest = 0x1p30F;
    if (left < -farthest || left > farthest) return static_cast<int>(farthest);
    const int towardsZero = static_cast<int>(left);
    return static_cast<float>(towardsZero) > left ? towardsZero - 1 : towardsZero;
}

/// A number by its bits, both zeros alike.
std::uint64_t Bits(float number) { return std::bit_cast<std::uint32_t>(number + 0.0F); }

} // namespace

SpotIndex::Link* SpotIndex::Chain(int twip, bool between, float top) {
    const std::uint64_t key = static_cast<std::uint64_t>(twip) << 33U | Bits(top) << 1U;
    const std::uint64_t hash = (key + (between ? 1U : 0U)) * 0x9E3779B97F4A7C15U;
    return &chains[static_cast<std::size_t>(hash >> shift)];
}

void SpotIndex::Make(std::span<const Sprite> sprites, bool hiddenToo) {
    const auto bits = static_cast<unsigned>(std::bit_width(sprites.size() / 2 | 1U));
    shift = static_cast<int>(64U - bits);
    chains.assign(std::size_t{1} << bits, None);
    next.resize(sprites.size());
    anyBetween = false;
    // From the last sprite to the first, each put before those of its chain: so they rise.
    for (std::size_t i = sprites.size(); i-- > 0;) {
        const Sprite& sprite = sprites[i];
        if (!sprite.Visible && !hiddenToo) continue;
        const int twip = TwipBefore(sprite.Left);
        const bool between = static_cast<float>(twip) != sprite.Left;
        anyBetween |= between;
        Link* const first = Chain(twip, between, sprite.Top);
        next[i] = *first;
        *first = static_cast<Link>(i);
    }
    made = true;
}

void SpotIndex::Find(std::span<const Sprite> sprites, bool hiddenToo, float left, float top,
                     std::vector<int>& found) {
    const int twip = TwipBefore(left);
    const bool between = static_cast<float>(twip) != left;
    std::array<Link*, 5> looked{Chain(twip, false, top)};
    std::size_t count = 1;
    if (between) looked.at(count++) = Chain(twip + 1, false, top);
    if (anyBetween) {
        for (const int at : {twip - 1, twip, twip + 1}) looked.at(count++) = Chain(at, true, top);
    }
    for (std::size_t i = 0; i < count; ++i) {
        for (Link* link = looked[i]; *link != None;) {
            const Sprite& sprite = sprites[*link];
            if (!sprite.Visible && !hiddenToo) {
                *link = next[*link];
                continue;
            }
            if (IsAt(sprite, left, top)) found.push_back(*link);
            link = &next[*link];
        }
    }
    if (count == 1) return;
    // Some of the chains can be one and the same.
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
}

} // namespace tumbledeep
