// The gems: three diamonds that stand on their point, and three discs that are stones seen from
// above. The icon takes its diamond from here too.
#include "pictures/Canvas.h"
#include "pictures/Draw.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tumbledeep {

namespace {

struct Cut {
    Colour Pale;
    Colour Full;
    Colour Deep;
};

constexpr std::array<Cut, DiamondCount> Diamonds{{
    {{255, 213, 213}, {255, 47, 47}, {185, 0, 0}},
    {{224, 244, 236}, {102, 200, 162}, {50, 136, 103}},
    {{224, 229, 244}, {102, 127, 200}, {50, 72, 136}},
}};

constexpr std::array<Colour, GemTypePicCount - DiamondCount> DropRims{
    {{255, 133, 133}, {133, 255, 133}, {133, 255, 255}}};

constexpr Colour DropEdge{128, 128, 128};

/// A share of the way from the edge to the middle of a diamond, and the colour that ends there. The
/// steps are hard, as cuts are.
constexpr float BevelDepth = 0.13F;
constexpr float CrownDepth = 0.46F;
constexpr float PavilionDepth = 0.74F;

Colour CutColour(const Cut& cut, float depth) {
    if (depth < BevelDepth) return cut.Pale;
    if (depth < CrownDepth) return cut.Full;
    return depth < PavilionDepth ? cut.Deep : Black;
}

/// The four facets catch the light from the upper left, each in its own measure.
Colour OnFacet(Colour colour, int across, int down) {
    if (colour == Black) return colour;
    if (across <= 0 && down <= 0) return Blend(colour, White, 0.32F);
    if (across <= 0) return Lit(colour, 0.88F);
    return down <= 0 ? colour : Lit(colour, 0.66F);
}

/// A spark on the upper left, where the light comes from; `size` is its arms' length in pixels.
void StampGlint(Bitmap& bitmap, int x, int y, int size) {
    for (int arm = -size; arm <= size; ++arm) {
        bitmap.At(x + arm, y) = White;
        bitmap.At(x, y + arm) = White;
    }
}

/// The disc is a stone seen from above: a table of eight sides, and eight facets round it.
constexpr int Sides = 8;
constexpr float TableReach = 5.2F;
constexpr float TableEdge = 1.1F;
constexpr float FullTurn = 6.2831853F;

/// How far a place is from the middle, measured across the nearest of the table's sides.
float AcrossSide(float x, float y, float& facing) {
    float reach = 0;
    for (int side = 0; side < Sides; ++side) {
        const float angle = FullTurn * static_cast<float>(side) / Sides;
        const float across = x * std::cos(angle) + y * std::sin(angle);
        if (across <= reach) continue;
        reach = across;
        facing = angle;
    }
    return reach;
}

/// A facet that faces the light, which comes from the upper left, is bright.
float FacetLight(float facing) {
    constexpr float fromUpperLeft = FullTurn * 0.625F;
    return 0.92F + 0.2F * std::cos(facing - fromUpperLeft);
}

Colour StoneFromAbove(Colour rim, float x, float y) {
    const float distance = std::sqrt(x * x + y * y);
    float facing = 0;
    const float reach = AcrossSide(x, y, facing);
    const Colour body = Blend(White, rim, distance / (FullRadius - 2.0F));
    if (reach < TableReach) return Blend(body, rim, x + y > 0 ? 0.3F : 0.0F);
    if (reach < TableReach + TableEdge) return Lit(rim, 0.72F);
    // The line between two facets runs from a corner of the table to the rim.
    const float between = std::sqrt(std::max(0.0F, distance * distance - reach * reach));
    const bool onLine = reach * std::tan(FullTurn / (2 * Sides)) - between < 0.55F;
    return Lit(Blend(body, rim, 0.55F), FacetLight(facing) * (onLine ? 0.78F : 1.0F));
}

Bitmap DrawDrop(Colour rim) {
    Bitmap bitmap;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (!InFullDisc(x, y)) continue;
            const float edge = DistanceFromMiddle(x, y) - FullRadius + 1.6F;
            bitmap.At(x, y) = Blend(
                StoneFromAbove(rim, static_cast<float>(x - Middle), static_cast<float>(y - Middle)),
                DropEdge, edge);
        }
    }
    StampGlint(bitmap, 8, 7, 2);
    return bitmap;
}

} // namespace

void StampDiamond(Bitmap& bitmap, int member, int halfHeight) {
    const float halfWidth = 0.85F * static_cast<float>(halfHeight);
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            const int across = x - Middle;
            const int down = y - Middle;
            const float depth = 1.0F - std::abs(static_cast<float>(across)) / halfWidth -
                                std::abs(static_cast<float>(down)) / static_cast<float>(halfHeight);
            if (depth < 0) continue;
            const Colour colour = CutColour(Diamonds[static_cast<std::size_t>(member)], depth);
            bitmap.At(x, y) = OnFacet(colour, across, down);
        }
    }
    StampGlint(bitmap, Middle - halfHeight / 4, Middle - halfHeight / 3, 1);
}

Bitmap DrawGem(int member) {
    if (member >= DiamondCount)
        return DrawDrop(DropRims[static_cast<std::size_t>(member - DiamondCount)]);
    Bitmap bitmap;
    StampDiamond(bitmap, member, Middle);
    return bitmap;
}

} // namespace tumbledeep
