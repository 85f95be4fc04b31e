// A board drawn into an image: places, order and edges. That it is what the window shows can only
// be seen on a screen.
#include "formats/LoadMap.h"
#include "map/draw/BoardImage.h"
#include "pictures/Catalogue.h"

#include <gtest/gtest.h>

namespace tumbledeep {

namespace {

TEST(BoardImage, HasTheSpritesInWholePixelsAndIsCutAtTheBoardsEdges) {
    const Image image = DrawBoard(LoadMap("harddirt 0 367\ndirt 360 720\nyou 360 360\n"
                                          "dirt 360 360\nfactory -180 -180 x\nfactory 360 900 x\n"
                                          "movingmineT 9e8 -9e8\n",
                                          1),
                                  2);
    EXPECT_EQ(image.Width, 146);
    EXPECT_EQ(image.Height, 98);
    const Bitmap& factory = Catalogue()[static_cast<std::size_t>(Picture::Factory)];
    const Colour wall{0, 0, 0};
    const Colour dirt{192, 192, 192};
    const struct {
        int X, Y;
        Colour Seen;
    } pixels[] = {{48, 10, {}},
                  {49, 10, wall},
                  {98, 10, wall},
                  {99, 10, {}},
                  {26, 25, {}},
                  {10, 10, factory.At(17, 17)},
                  {49, 49, dirt},
                  {48, 48, dirt},
                  {73, 73, {255, 192, 192}},
                  {119, 60, dirt},
                  {145, 60, factory.At(12, 6)}};
    for (const auto& [x, y, seen] : pixels) {
        const Pixel& pixel = image.At(x, y);
        EXPECT_EQ((Colour{pixel.Red, pixel.Green, pixel.Blue}), seen) << x << ' ' << y;
        EXPECT_EQ(pixel.Alpha, 255);
    }
    EXPECT_THROW(DrawBoard(LoadMap("you 0 0\n", 1), 1), std::runtime_error);
    EXPECT_THROW(DrawBoard(LoadMap("dirt 0 9e8\n", 1), 1), std::runtime_error);
}

} // namespace

} // namespace tumbledeep
