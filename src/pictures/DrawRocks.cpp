// The rocks: seven heavy boulders, lit from the upper left. They differ in colour and in the grain
// of their stone, which comes of the rock's number and so is the same on every run.
#include "pictures/Canvas.h"
#include "pictures/Draw.h"

#include <array>
#include <cmath>

namespace tumbledeep {

namespace {

struct Stone {
    Colour Disc;
    Colour Rim;
    int Blot;       ///< the size of the mottling in pixels
    float Contrast; ///< how far the mottling strays from the disc's colour
};

constexpr std::array<Stone, 7> Stones{{
    {{94, 49, 1}, {0, 0, 0}, 4, 1.3F},
    {{161, 116, 68}, {67, 67, 67}, 4, 0.8F},
    {{75, 30, 0}, {0, 0, 0}, 5, 1.3F},
    {{89, 38, 0}, {28, 3, 0}, 1, 0.7F},
    {{50, 0, 0}, {0, 0, 0}, 5, 1.2F},
    {{112, 62, 62}, {62, 62, 62}, 3, 0.8F},
    {{80, 60, 60}, {49, 37, 37}, 4, 0.8F},
}};

/// About 1 on the whole: more towards the light, less away from it.
float LightOn(int x, int y) { return 1.0F + static_cast<float>(2 * Middle - x - y) * 0.027F; }

/// Blots within blots, in a few steps, so that they look like stone and not like smoke.
float Mottling(const Stone& stone, int x, int y, unsigned seed) {
    const float coarse = Mottle(x, y, stone.Blot, seed);
    const float fine = Grain(x, y, seed + 100U);
    constexpr float steps = 5.0F;
    return std::round((0.75F * coarse + 0.25F * fine) * steps) / steps - 0.5F;
}

Colour StoneColour(const Stone& stone, int x, int y, unsigned seed) {
    return Lit(stone.Disc, LightOn(x, y) * (1.0F + stone.Contrast * Mottling(stone, x, y, seed)));
}

} // namespace

Bitmap DrawRock(int member) {
    const Stone& stone = Stones[static_cast<std::size_t>(member)];
    Bitmap bitmap;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (!InFullDisc(x, y)) continue;
            const Colour body = StoneColour(stone, x, y, static_cast<unsigned>(member));
            bitmap.At(x, y) = Blend(body, stone.Rim, DistanceFromMiddle(x, y) - FullRadius + 2.0F);
        }
    }
    return bitmap;
}

} // namespace tumbledeep
