// The gems: three diamonds that stand on their point, drawn by facets, and three discs like drops.
// The icon takes its diamond from here too.
#include "pictures/Canvas.h"
#include "pictures/Draw.h"

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

/// Where the bevel at the edge ends, and where the colour is at its deepest but for the middle.
constexpr float BevelDepth = 0.11F;
constexpr float DeepDepth = 0.55F;

/// From the edge, at 0, to the middle, at 1: a pale bevel, then full, deep and black in turn.
Colour CutColour(const Cut& cut, float depth) {
    if (depth < BevelDepth) return cut.Pale;
    if (depth < DeepDepth) {
        return Blend(cut.Full, cut.Deep, (depth - BevelDepth) / (DeepDepth - BevelDepth));
    }
    return Blend(cut.Deep, Black, (depth - DeepDepth) / (0.95F - DeepDepth));
}

/// The four facets catch the light from the upper left each in its own measure, the less the
/// nearer they come to the dark middle.
Colour OnFacet(Colour colour, float depth, int across, int down) {
    if (across <= 0 && down <= 0) return Blend(colour, White, 0.4F * (1.0F - depth));
    if (across <= 0) return Lit(colour, 0.92F);
    return down <= 0 ? colour : Lit(colour, 0.75F);
}

Bitmap DrawDrop(Colour rim) {
    Bitmap bitmap;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (!InFullDisc(x, y)) continue;
            const float distance = DistanceFromMiddle(x, y);
            const Colour body = Blend(White, rim, distance / (FullRadius - 1.0F));
            bitmap.At(x, y) = Blend(body, DropEdge, distance - FullRadius + 1.5F);
        }
    }
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
            bitmap.At(x, y) = OnFacet(colour, depth, across, down);
        }
    }
}

Bitmap DrawGem(int member) {
    if (member >= DiamondCount)
        return DrawDrop(DropRims[static_cast<std::size_t>(member - DiamondCount)]);
    Bitmap bitmap;
    StampDiamond(bitmap, member, Middle);
    return bitmap;
}

} // namespace tumbledeep
