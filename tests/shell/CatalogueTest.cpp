// What a player must be able to tell from the pictures: kinds, hands, and rough colours.
#include "shell/Catalogue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tumbledeep {

namespace {

constexpr int Last = Bitmap::Size - 1;
constexpr int Middle = Bitmap::Size / 2;
constexpr Colour White{};
constexpr Colour Black{0, 0, 0};
constexpr std::array<Heading, 4> Headings{Heading::Up, Heading::Down, Heading::Left,
                                          Heading::Right};

struct StarKind {
    Picture Template;
    Picture Up;
    std::array<Colour, 3> Shades;
};

constexpr std::array<StarKind, 5> StarKinds{{
    {Picture::MovingMineL,
     Picture::MovingMineLUpPic,
     {{{0, 0, 128}, {128, 128, 255}, {192, 192, 255}}}},
    {Picture::MovingMineR,
     Picture::MovingMineRUpPic,
     {{{128, 0, 0}, {255, 128, 128}, {255, 192, 192}}}},
    {Picture::MovingMineFL,
     Picture::MovingMineFLUpPic,
     {{{0, 115, 0}, {128, 255, 128}, {192, 255, 192}}}},
    {Picture::MovingMineP,
     Picture::MovingMinePUpPic,
     {{{128, 0, 128}, {255, 128, 255}, {255, 192, 255}}}},
    {Picture::MovingMinePP,
     Picture::MovingMinePPUpPic,
     {{{0, 0, 0}, {128, 128, 128}, {192, 192, 192}}}},
}};

const Bitmap& Look(Picture picture) { return Catalogue()[static_cast<std::size_t>(picture)]; }

/// The pixels along one edge of the bitmap that are not white.
int PaintedOnEdge(const Bitmap& bitmap, Heading edge) {
    int painted = 0;
    for (int i = 0; i < Bitmap::Size; ++i) {
        const std::array<Colour, 4> pixels{bitmap.At(i, 0), bitmap.At(i, Last), bitmap.At(0, i),
                                           bitmap.At(Last, i)};
        if (pixels[static_cast<std::size_t>(edge)] != White) ++painted;
    }
    return painted;
}

int BarLength(const Bitmap& bitmap, Heading side) {
    const Offset step = Ahead(side);
    int length = 0;
    while (length < Middle &&
           bitmap.At(Middle + step.Col * (length + 1), Middle + step.Row * (length + 1)) != White) {
        ++length;
    }
    return length;
}

double Luminance(Colour colour) {
    return 0.2126 * colour.Red + 0.7152 * colour.Green + 0.0722 * colour.Blue;
}

long PixelsApartInGrey(const Bitmap& one, const Bitmap& other) {
    constexpr double noticeable = 48;
    long apart = 0;
    for (std::size_t i = 0; i < one.Pixels.size(); ++i) {
        const double difference = Luminance(one.Pixels[i]) - Luminance(other.Pixels[i]);
        if (std::abs(difference) >= noticeable) ++apart;
    }
    return apart;
}

/// The mean of a channel over the inner disc, without the rim.
double MeanInside(const Bitmap& bitmap, std::uint8_t Colour::*channel) {
    double sum = 0;
    int count = 0;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (std::hypot(x - Middle, y - Middle) > 10) continue;
            sum += bitmap.At(x, y).*channel;
            ++count;
        }
    }
    return sum / count;
}

TEST(CatalogueTest, SpikesPointToTheHandSideAndTouchNoOtherEdge) {
    struct Row {
        Picture Store;
        Heading Side;
    };
    constexpr std::array<Row, 8> rows{{{Picture::MovingMineLUpPic, Heading::Left},
                                       {Picture::MovingMineLRightPic, Heading::Up},
                                       {Picture::MovingMineLDownPic, Heading::Right},
                                       {Picture::MovingMineLLeftPic, Heading::Down},
                                       {Picture::MovingMineRUpPic, Heading::Right},
                                       {Picture::MovingMineRRightPic, Heading::Down},
                                       {Picture::MovingMineRDownPic, Heading::Left},
                                       {Picture::MovingMineRLeftPic, Heading::Up}}};
    constexpr int barWidth = 3;
    for (const auto& [store, side] : rows) {
        for (const Heading edge : Headings) {
            SCOPED_TRACE(PictureName(store) + " at the edge " + std::string(TagOf(edge)));
            const int painted = PaintedOnEdge(Look(store), edge);
            if (edge == side) {
                EXPECT_GT(painted, barWidth) << "no crossbar";
                EXPECT_EQ(BarLength(Look(store), side), Middle) << "a gap in the bar";
            } else {
                EXPECT_EQ(painted, 0);
            }
        }
    }
}

TEST(CatalogueTest, StarsAreSmallAndKeepToTheirShades) {
    for (const StarKind& kind : StarKinds) {
        SCOPED_TRACE(PictureName(kind.Template));
        std::vector<Picture> pictures{kind.Template};
        for (const Heading heading : Headings) {
            pictures.push_back(HeadingPicture(kind.Up, heading));
        }
        for (const Picture picture : pictures) {
            for (const Colour& pixel : Look(picture).Pixels) {
                EXPECT_TRUE(pixel == White || std::find(kind.Shades.begin(), kind.Shades.end(),
                                                        pixel) != kind.Shades.end());
            }
        }
        for (const Colour& shade : kind.Shades) {
            const auto& pixels = Look(kind.Template).Pixels;
            EXPECT_NE(std::find(pixels.begin(), pixels.end(), shade), pixels.end());
        }
        for (const Heading side : Headings) EXPECT_EQ(BarLength(Look(kind.Template), side), 7);
    }
}

TEST(CatalogueTest, OnlyPatrolsShowTheirHeading) {
    for (const StarKind& kind : StarKinds) {
        const bool patrol =
            kind.Up == Picture::MovingMineLUpPic || kind.Up == Picture::MovingMineRUpPic;
        for (const Heading heading : Headings) {
            const Picture store = HeadingPicture(kind.Up, heading);
            EXPECT_EQ(Look(store) == Look(kind.Template), !patrol) << PictureName(store);
        }
    }
}

TEST(CatalogueTest, PicturesOfDifferentNameDiffer) {
    std::vector<Picture> pictures;
    for (int i = 0; i < PictureCount; ++i) {
        const auto picture = static_cast<Picture>(i);
        const bool twinOfTemplate =
            picture >= Picture::MovingMineFLUpPic && picture <= Picture::MovingMinePPRightPic;
        if (!twinOfTemplate) pictures.push_back(picture);
    }
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_NE(Look(pictures[i]), Look(pictures[j]))
                << PictureName(pictures[i]) << " and " << PictureName(pictures[j]);
        }
    }
}

TEST(CatalogueTest, MinesAreToldApartWithoutHue) {
    constexpr std::array<Picture, 6> mines{Picture::MovingMineT, Picture::MovingMineL,
                                           Picture::MovingMineR, Picture::MovingMineFL,
                                           Picture::MovingMineP, Picture::MovingMinePP};
    constexpr long enough = 16;
    for (std::size_t i = 0; i < mines.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_GE(PixelsApartInGrey(Look(mines[i]), Look(mines[j])), enough)
                << PictureName(mines[i]) << " and " << PictureName(mines[j]);
        }
    }
}

TEST(CatalogueTest, RocksHaveTheirColourOnTheWhole) {
    constexpr std::array<Colour, RoundRockPicCount> colours{{{94, 49, 1},
                                                             {161, 116, 68},
                                                             {75, 30, 0},
                                                             {89, 38, 0},
                                                             {50, 0, 0},
                                                             {112, 62, 62},
                                                             {80, 60, 60}}};
    constexpr double about = 12;
    for (int i = 0; i < RoundRockPicCount; ++i) {
        const Picture rock = Member(Picture::RoundRockPic, i);
        const Colour& colour = colours[static_cast<std::size_t>(i)];
        EXPECT_NEAR(MeanInside(Look(rock), &Colour::Red), colour.Red, about) << PictureName(rock);
        EXPECT_NEAR(MeanInside(Look(rock), &Colour::Green), colour.Green, about)
            << PictureName(rock);
        EXPECT_NEAR(MeanInside(Look(rock), &Colour::Blue), colour.Blue, about) << PictureName(rock);
    }
}

TEST(CatalogueTest, GemsShadeFromTheRimToTheMiddle) {
    for (int i = 0; i < GemTypePicCount; ++i) {
        const Bitmap& gem = Look(Member(Picture::GemTypePic, i));
        SCOPED_TRACE(i);
        if (i < 3) {
            EXPECT_EQ(gem.At(Middle, Middle), Black);
            EXPECT_GT(Luminance(gem.At(Middle, 1)), 200);
            EXPECT_EQ(gem.At(0, 0), White);
        } else {
            EXPECT_EQ(gem.At(Middle, Middle), White);
            EXPECT_EQ(gem.At(0, Middle), (Colour{128, 128, 128}));
            EXPECT_LT(Luminance(gem.At(3, Middle)), Luminance(gem.At(8, Middle)));
        }
    }
}

TEST(CatalogueTest, ShapesAndDiscAreFilledWithTheirColours) {
    EXPECT_EQ(ShapeBitmap(Shape::You).At(Middle, Middle), (Colour{255, 192, 192}));
    EXPECT_EQ(ShapeBitmap(Shape::Dirt).At(Middle, Middle), (Colour{192, 192, 192}));
    EXPECT_EQ(ShapeBitmap(Shape::HardDirt).At(Middle, Middle), Black);
    EXPECT_EQ(StatusDisc().At(Middle, Middle), (Colour{255, 0, 0}));
    EXPECT_EQ(StatusDisc().At(0, Middle), Black);
    for (const int corner : {0, Last}) {
        EXPECT_TRUE(ShapeCovers(Shape::Dirt, corner, Last));
        EXPECT_TRUE(ShapeCovers(Shape::HardDirt, corner, Last));
        EXPECT_FALSE(ShapeCovers(Shape::You, corner, Last));
        EXPECT_FALSE(StatusDiscCovers(corner, Last));
        EXPECT_FALSE(AppIconCovers(corner, Last));
        EXPECT_TRUE(ShapeCovers(Shape::You, corner, Middle));
        EXPECT_TRUE(ShapeCovers(Shape::You, Middle, corner));
    }
}

} // namespace

} // namespace tumbledeep
