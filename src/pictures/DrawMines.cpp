// The mines: one small star in each kind's three shades with a heart of the kind's own, the spike
// that marks the hand of L and R mines, and the larger star of the T mine. Stars are patterns of
// letters.
#include "pictures/Canvas.h"
#include "pictures/Draw.h"

#include <array>

namespace tumbledeep {

namespace {

template <std::size_t Rows> using Pattern = std::array<std::string_view, Rows>;

/// d dark, m middle, l light. The star leaves its middle open for the kind's own heart.
constexpr Pattern<15> Star{
    ".......d.......", //
    "......dmd......", //
    "..d...dmd...d..", //
    "...ddddmdddd...", //
    "...dd.....dd...", //
    "...d.......d...", //
    ".ddd.......ddd.", //
    "dmmm.......mmmd", //
    ".ddd.......ddd.", //
    "...d.......d...", //
    "...dd.....dd...", //
    "...ddddmdddd...", //
    "..d...dmd...d..", //
    "......dmd......", //
    ".......d.......",
};
constexpr int StarEdge = 5;

/// By kind, from L to PP: a lens, a slot, two halves, one eye and two eyes, told apart without
/// their hue.
constexpr std::array<Pattern<7>, 5> Hearts{{
    {
        ".ddddd.", //
        "ddddddd", //
        "ddmmmdd", //
        "ddmlmdd", //
        "ddmmmdd", //
        "ddddddd", //
        ".ddddd.",
    },
    {
        ".ddddd.", //
        "ddddddd", //
        "lllllll", //
        "lllllll", //
        "lllllll", //
        "ddddddd", //
        ".ddddd.",
    },
    {
        ".lllll.", //
        "lllllld", //
        "llllldd", //
        "llllddd", //
        "llldddd", //
        "llddddd", //
        ".ddddd.",
    },
    {
        ".mlllm.", //
        "mlllllm", //
        "lldddll", //
        "lldddll", //
        "lldddll", //
        "mlllllm", //
        ".mlllm.",
    },
    {
        ".lllll.", //
        "lddlddl", //
        "lddlddl", //
        "lddlddl", //
        "lddlddl", //
        "lddlddl", //
        ".lllll.",
    },
}};
constexpr int HeartEdge = 9;

/// The spike as it points up, from the middle of the bitmap's upper edge to the star.
constexpr Pattern<8> Spike{
    "ddddddddd", //
    "dmmmmmmmd", //
    "dddmmmddd", //
    "...dmd...", //
    "...dmd...", //
    "...dmd...", //
    "...dmd...", //
    "...dmd...",
};
constexpr int SpikeLeft = 8;

using Shades = std::array<Ink, 3>;

constexpr Shades ShadesOf(Colour dark, Colour middle, Colour light) {
    return {{{'d', dark}, {'m', middle}, {'l', light}}};
}

constexpr std::array<Shades, 5> KindShades{
    ShadesOf({0, 0, 128}, {128, 128, 255}, {192, 192, 255}),
    ShadesOf({128, 0, 0}, {255, 128, 128}, {255, 192, 192}),
    ShadesOf({0, 115, 0}, {128, 255, 128}, {192, 255, 192}),
    ShadesOf({128, 0, 128}, {255, 128, 255}, {255, 192, 255}),
    ShadesOf({0, 0, 0}, {128, 128, 128}, {192, 192, 192}),
};

/// g grey, p pale grey, r dark red.
constexpr Pattern<19> StarT{
    "rrr.............rrr", //
    "rrrg...........grrr", //
    "rrggg.........gggrr", //
    ".ggpgg.......ggpgg.", //
    "..ggpggg...gggpgg..", //
    "...gppgggggggppg...", //
    "....gpppppppppg....", //
    "....gppprrrpppg....", //
    "....gpprrrrrppg....", //
    "....gpprrrrrppg....", //
    "....gpprrrrrppg....", //
    "....gppprrrpppg....", //
    "....gpppppppppg....", //
    "...gppgggggggppg...", //
    "..ggpggg...gggpgg..", //
    ".ggpgg.......ggpgg.", //
    "rrggg.........gggrr", //
    "rrrg...........grrr", //
    "rrr.............rrr",
};
constexpr int StarTEdge = 3;
constexpr Shades ShadesT{{{'g', {143, 143, 143}}, {'p', {207, 200, 207}}, {'r', {143, 0, 0}}}};

/// The place of a kind among those that share the star.
std::size_t StarIndex(Kind mine) {
    return static_cast<std::size_t>(mine) - static_cast<std::size_t>(Kind::MovingMineL);
}

/// The picture drawn for the upper side, turned to another.
Bitmap Turned(const Bitmap& upright, Offset side) {
    Bitmap turned;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            const int across = x - Middle;
            const int down = y - Middle;
            turned.At(Middle - side.Row * across - side.Col * down,
                      Middle + side.Col * across - side.Row * down) = upright.At(x, y);
        }
    }
    return turned;
}

void StampStar(Bitmap& bitmap, Kind mine) {
    const Shades& shades = KindShades.at(StarIndex(mine));
    Stamp(bitmap, StarEdge, StarEdge, Star, shades);
    Stamp(bitmap, HeartEdge, HeartEdge, Hearts.at(StarIndex(mine)), shades);
}

} // namespace

Bitmap DrawStar(Kind mine) {
    Bitmap bitmap;
    StampStar(bitmap, mine);
    return bitmap;
}

Bitmap DrawSpikedStar(Kind mine, Offset side) {
    Bitmap spike;
    Stamp(spike, SpikeLeft, 0, Spike, KindShades.at(StarIndex(mine)));
    Bitmap bitmap = Turned(spike, side);
    StampStar(bitmap, mine);
    return bitmap;
}

Bitmap DrawMineT() {
    Bitmap bitmap;
    Stamp(bitmap, StarTEdge, StarTEdge, StarT, ShadesT);
    return bitmap;
}

} // namespace tumbledeep
