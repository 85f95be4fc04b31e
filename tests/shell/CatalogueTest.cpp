// What a player must be able to tell from the pictures: kinds, hands and colours.
#include "shell/Catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace tumbledeep {

namespace {

using enum Picture;

constexpr std::array<Heading, 4> Headings{Heading::Up, Heading::Down, Heading::Left,
                                          Heading::Right};

struct Star {
    Picture Template, Up;
    bool ShowsHeading;
    std::array<Colour, 4> Colours;
};

constexpr Colour White{};
constexpr std::array<Star, 5> Stars{
    {{MovingMineL, MovingMineLUpPic, true, {White, {0, 0, 128}, {128, 128, 255}, {192, 192, 255}}},
     {MovingMineR, MovingMineRUpPic, true, {White, {128, 0, 0}, {255, 128, 128}, {255, 192, 192}}},
     {MovingMineFL,
      MovingMineFLUpPic,
      false,
      {White, {0, 115, 0}, {128, 255, 128}, {192, 255, 192}}},
     {MovingMineP,
      MovingMinePUpPic,
      false,
      {White, {128, 0, 128}, {255, 128, 255}, {255, 192, 255}}},
     {MovingMinePP,
      MovingMinePPUpPic,
      false,
      {White, {0, 0, 0}, {128, 128, 128}, {192, 192, 192}}}}};

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
            const Picture store = HeadingPicture(up, Headings[i]);
            std::array<int, 4> painted{};
            for (int at = 0; at <= last; ++at) {
                painted[0] += Look(store).At(at, 0) != White;
                painted[1] += Look(store).At(at, last) != White;
                painted[2] += Look(store).At(0, at) != White;
                painted[3] += Look(store).At(last, at) != White;
            }
            for (std::size_t edge = 0; edge < painted.size(); ++edge) {
                const bool hand = TagOf(Headings[edge]) == std::string(1, hands[i]);
                EXPECT_EQ(painted[edge] > barWidth, hand) << PictureName(store) << ' ' << edge;
                EXPECT_EQ(painted[edge] > 0, hand) << PictureName(store) << ' ' << edge;
            }
        }
    }
}

TEST(Catalogue, StarsKeepToTheirColoursAndPatrolsAloneShowTheirHeading) {
    for (const Star& star : Stars) {
        SCOPED_TRACE(PictureName(star.Template));
        for (const Colour colour : star.Colours) {
            EXPECT_TRUE(Holds(Look(star.Template).Pixels, colour));
        }
        for (const Heading heading : Headings) {
            const Bitmap& store = Look(HeadingPicture(star.Up, heading));
            EXPECT_EQ(store != Look(star.Template), star.ShowsHeading);
            for (const Colour pixel : store.Pixels) EXPECT_TRUE(Holds(star.Colours, pixel));
        }
    }
}

TEST(Catalogue, MinesAreToldApartWithoutHue) {
    constexpr std::array<Picture, 6> mines{MovingMineT,  MovingMineL, MovingMineR,
                                           MovingMineFL, MovingMineP, MovingMinePP};
    const auto luminance = [](Colour c) {
        return 0.2126 * c.Red + 0.7152 * c.Green + 0.0722 * c.Blue;
    };
    constexpr double noticeable = 48;
    constexpr int enough = 16;
    for (const Picture one : mines) {
        for (const Picture other : mines) {
            if (one == other) continue;
            int apart = 0;
            for (std::size_t i = 0; i < Look(one).Pixels.size(); ++i) {
                const double grey = luminance(Look(one).Pixels[i]);
                apart += std::abs(grey - luminance(Look(other).Pixels[i])) >= noticeable;
            }
            EXPECT_GE(apart, enough) << PictureName(one) << " and " << PictureName(other);
        }
    }
}

} // namespace

} // namespace tumbledeep
