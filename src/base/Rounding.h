// How numbers are rounded and cut, the same on every processor: single precision to whole numbers,
// whole numbers to 16 bits. Reading numbers from text is in base/Number.h.
#pragma once

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tumbledeep {

// Results must not depend on how a compiler likes to reckon: no wider intermediate results, no
// algebra that only holds for real numbers. Contraction is switched off by -ffp-contract=off.
static_assert(FLT_EVAL_METHOD == 0, "float must be reckoned as float");
static_assert(std::numeric_limits<float>::is_iec559);
#ifdef __FAST_MATH__
#error "the rules of the game need exact single precision: build without -ffast-math"
#endif

/// The nearest whole number, a tie going to the even one. Adding and taking off 2^23, beyond which
/// single precision has whole numbers alone, lets the processor round. Zero loses its sign.
constexpr float RoundToEven(float value) {
    constexpr float wholeFrom = 0x1p23F;
    if (value >= 0.0F && value < wholeFrom) return (value + wholeFrom) - wholeFrom;
    if (value < 0.0F && value > -wholeFrom) return (value - wholeFrom) + wholeFrom;
    return value;
}

/// The lowest 16 bits of a number, as a counter of 16 bits keeps it.
constexpr std::int16_t To16(int value) { return static_cast<std::int16_t>(value); }

/// One more, but never past the largest number of 16 bits.
constexpr void CountUp(std::int16_t& counter) {
    if (counter < std::numeric_limits<std::int16_t>::max()) ++counter;
}

/// The nearest whole number that 16 bits can hold, a tie going to the even one.
inline std::int16_t NearestTo16(double value) {
    return static_cast<std::int16_t>(
        std::nearbyint(std::clamp<double>(value, std::numeric_limits<std::int16_t>::min(),
                                          std::numeric_limits<std::int16_t>::max())));
}

} // namespace tumbledeep
