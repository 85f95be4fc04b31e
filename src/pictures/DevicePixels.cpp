// Rounding to the nearest pixel, a tie going to the right and down, so that sprites one cell apart
// stay so wherever they lie.
#include "pictures/DevicePixels.h"

#include "world/Cell.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

/// Keeps the arithmetic of rectangles far from its limits.
constexpr float FarAway = 10'000'000;

} // namespace

int ToDevice(float twips, int scale) {
    const float device = std::floor(twips / TwipsPerPixel * static_cast<float>(scale) + 0.5F);
    return static_cast<int>(std::clamp(device, -FarAway, FarAway));
}

} // namespace tumbledeep
