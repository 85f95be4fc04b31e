// What a player must be able to tell from the pictures: kinds, hands and colours. Beyond that the
// drawings are free.
#include "pictures/Catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

namespace tumbledeep {

namespace {

using enum Picture;

struct Star {
    Picture Template, Up;
    std::array<Colour, 3> Shades;
};

constexpr Colour White{};
constexpr std::array<Star, 5> Stars{
    {{MovingMineL, MovingMineLUpPic, {{{0, 0, 128}, {128, 128, 255}, {192, 192, 255}}}},
     {MovingMineR, MovingMineRUpPic, {{{128, 0, 0}, {255, 128, 128}, {255, 192, 192}}}},
     {MovingMineFL, MovingMineFLUpPic, {{{0, 115, 0}, {128, 255, 128}, {192, 255, 192}}}},
     {MovingMineP, MovingMinePUpPic, {{{128, 0, 128}, {255, 128, 255}, {255, 192, 255}}}},
     {MovingMinePP, MovingMinePPUpPic, {{{0, 0, 0}, {128, 128, 128}, {192, 192, 192}}}}}};

const Bitmap& Look(Picture picture) { return Catalogue()[static_cast<std::size_t>(picture)]; }

bool Holds(const auto& colours, Colour colour) {
    return std::find(colours.begin(), colours.end(), colour) != colours.end();
}

TEST(Catalogue, SpikesPointToTheHandSideAndTouchNoOtherEdge) {
    constexpr int last = Bitmap::Size - 1;
    constexpr int barWidth = 3;
    for (const auto& [up, hands] :
         {std::pair{MovingMineLUpPic, "LRDU"}, {MovingMineRUpPic, "RLUD"}}) {
        for (std::size_t i = 0; i < Headings.size(); ++i) {
            const Bitmap& look = Look(HeadingPicture(up, Headings[i]));
            std::map<char, int> painted;
            for (int at = 0; at <= last; ++at) {
                painted['U'] += look.At(at, 0) != White;
                painted['D'] += look.At(at, last) != White;
                painted['L'] += look.At(0, at) != White;
                painted['R'] += look.At(last, at) != White;
            }
            EXPECT_GT(painted[hands[i]], barWidth) << hands << i;
            painted.erase(hands[i]);
            for (const auto& [edge, count] : painted) EXPECT_EQ(count, 0) << hands << i << edge;
        }
    }
}

TEST(Catalogue, StarsKeepToTheirColoursAndPatrolsAloneShowTheirHeading) {
    for (const Star& star : Stars) {
        SCOPED_TRACE(PictureName(star.Template));
        const bool patrol = &star < &Stars[2];
        for (const Colour shade : star.Shades)
            EXPECT_TRUE(Holds(Look(star.Template).Pixels, shade));
        for (const Heading heading : Headings) {
            const Bitmap& store = Look(HeadingPicture(star.Up, heading));
            EXPECT_EQ(store != Look(star.Template), patrol);
            for (const Colour pixel : store.Pixels)
                EXPECT_TRUE(pixel == White || Holds(star.Shades, pixel));
        }
    }
}

TEST(Catalogue, EveryPictureIsDrawnAndNoTwoGemsOrRocksAlike) {
    const Bitmap white;
    for (int i = 1; i < PictureCount; ++i) {
        const auto picture = static_cast<Picture>(i);
        EXPECT_NE(Look(picture), white) << PictureName(picture);
        for (int other = static_cast<int>(GemTypePic); other < i; ++other) {
            EXPECT_NE(Look(picture), Look(static_cast<Picture>(other))) << PictureName(picture);
        }
    }
}

} // namespace

} // namespace tumbledeep
