// When the rules take two places for one, and the numbers by which SpotIndex.h and SpotRun.h tell
// places apart. Places are in twips.
#pragma once

#include <bit>
#include <cstdint>

namespace tumbledeep {

/// Less than 1 twip apart, reckoned as the rules do. For sprites from left to right the first half
/// turns false once, and the second one true.
inline bool IsBeside(float spriteLeft, float left) {
    return spriteLeft - 1.0F < left && left < spriteLeft + 1.0F;
}

/// The whole twip at or before a place. All places too far out for an int to hold share one.
inline int TwipBefore(float left) {
    constexpr float farthest = 0x1p30F;
    if (left < -farthest || left > farthest) return static_cast<int>(farthest);
    const int towardsZero = static_cast<int>(left);
    return static_cast<float>(towardsZero) > left ? towardsZero - 1 : towardsZero;
}

/// A whole twip from the left and a top as one number, both zeros alike.
inline std::uint64_t SpotKey(int twip, float top) {
    return static_cast<std::uint64_t>(twip) << 32U | std::bit_cast<std::uint32_t>(top + 0.0F);
}

/// Where among 2 to the power of (64 - `shift`) chains a key belongs.
inline std::size_t SpotChain(std::uint64_t key, int shift) {
    return static_cast<std::size_t>(key * 0x9E3779B97F4A7C15U >> shift);
}

/// The `shift` for so many sprites.
inline int ChainShift(std::size_t sprites) {
    return 64 - static_cast<int>(std::bit_width(sprites / 2 | 1U));
}

} // namespace tumbledeep
