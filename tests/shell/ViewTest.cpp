// The following view: strict thresholds, both axes, three modes, and the choice among them.
#include "support/Scenario.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

using testing::ElementsAre;

/// An open board with the player in cell (place, place) and a parent of 15360 by 11520 twips.
struct View : Scenario {
    View(int place, std::int16_t mode) : Scenario("@", "", {place, place}) {
        Board.AutoMoveOn = true;
        Board.AutoMoveMode = mode;
    }
    Window& Form = Board.Form;
};

TEST(View, GlideClosesATenthOfTheGapOrTwice) {
    // The player at Top 0 and Left 0: the glide aims at Top 5400 and at Left 7320.
    for (const auto& [from, to] : {std::pair{-720.0F, -648.0F},
                                   {-719, -582.39F},
                                   {0, 0},
                                   {720, 583.2F},
                                   {1599, 1295.19F},
                                   {1600, 1440},
                                   {-9000, -8100}}) {
        View scene(1, 2);
        scene.Form.Top = 5400 + from;
        scene.Form.Left = 7320 + from;
        scene.Ticks(1);
        EXPECT_NEAR(scene.Form.Top, 5400 + to, 0.01F) << from;
        EXPECT_NEAR(scene.Form.Left, 7320 + to, 0.01F) << from;
    }
}

TEST(View, SmallMapIsSizedByWallsAndDirtAndGlidesFromItsCentredPlace) {
    Scenario scene(R"(
        .....*
        .:....
        .#.@..
        .....O)");
    EXPECT_EQ(scene.Board.Form.Width, 735);
    EXPECT_EQ(scene.Board.Form.Height, 1095);
    scene.Ticks(5);
    EXPECT_EQ(scene.Board.Form.Left, 7680 - 367.5F);
    EXPECT_EQ(scene.Board.Form.Top, 5760 - 547.5F - 720) << "switched off";
    scene.Board.AutoMoveOn = true;
    scene.Ticks(200);
    EXPECT_NEAR(scene.Board.Form.Left, 7680 - 360 - 3 * 360, 1);
    EXPECT_NEAR(scene.Board.Form.Top, 5760 - 360 - 2 * 360, 1);
}

TEST(View, EdgeFlipsByAPageAtStrictThresholds) {
    const auto check = [](float Window::*side, float place, float after) {
        View scene(1, 3);
        scene.Form.Top = scene.Form.Left = 5000;
        scene.Form.*side = place;
        scene.Ticks(9);
        EXPECT_EQ(scene.Form.*side, place) << "only at multiples of ten";
        scene.Ticks(11);
        EXPECT_EQ(scene.Form.*side, after) << place;
    };
    for (const auto& [place, after] :
         {std::pair{9720.0F, 9720.0F}, {9721, -719}, {-720, -720}, {-721, 9719}}) {
        check(&Window::Top, place, after);
    }
    for (const auto& [place, after] :
         {std::pair{14280.0F, 14280.0F}, {14281, 1}, {0, 0}, {-1, 14279}}) {
        check(&Window::Left, place, after);
    }
}

TEST(View, WalkNudgesTheBoardInMode1) {
    struct Case {
        char Key;
        int Place;        ///< column and row of the player before the step
        float Side, Size; ///< of the board, along the step
        std::int16_t Mode;
        float Moves;
    };
    // In pairs on both sides of a limit: the player at 6784, 4736, 8704 and 7680 in the parent for
    // "w", "s", "a" and "d", the board's near side at 0, its far one at 10270 and 15000.
    for (const Case& c :
         {Case{'w', 30, -3296, 0, 1, 0}, Case{'w', 30, -3297, 0, 1, 360}, Case{'w', 10, 0, 0, 1, 0},
          Case{'w', 10, -1, 0, 1, 360}, Case{'w', 10, -1, 0, 2, 0}, Case{'w', 10, -1, 0, 3, 0},
          Case{'s', 30, -6064, 20000, 1, 0}, Case{'s', 30, -6063, 20000, 1, -360},
          Case{'s', 30, -6000, 16270, 1, 0}, Case{'s', 30, -6000, 16271, 1, -360},
          Case{'a', 30, -1376, 0, 1, 0}, Case{'a', 30, -1377, 0, 1, 360}, Case{'a', 10, 0, 0, 1, 0},
          Case{'a', 10, -1, 0, 1, 360}, Case{'d', 30, -3120, 30000, 1, 0},
          Case{'d', 30, -3119, 30000, 1, -360}, Case{'d', 30, -3000, 18000, 1, 0},
          Case{'d', 30, -3000, 18001, 1, -360}}) {
        for (const bool open : {true, false}) {
            View scene(c.Place, c.Mode);
            const bool upright = c.Key == 'w' || c.Key == 's';
            float& side = upright ? scene.Form.Top : scene.Form.Left;
            side = c.Side;
            (upright ? scene.Form.Height : scene.Form.Width) = c.Size;
            scene.Board.ViewMovesX = scene.Board.ViewMovesY = true;
            for (const Offset to : HeadingOffsets) {
                if (!open) scene.Board.Area(Near(scene.Board.You, to)) = Kind::HardDirt;
            }
            scene.Type(std::string(1, c.Key));
            EXPECT_EQ(side - c.Side, open ? c.Moves : 0) << c.Key << ' ' << c.Side << ' ' << c.Size;
        }
    }
}

TEST(View, FirstRunAsksOnce) {
    for (const auto& [text, mode] : {std::pair{"1", 1},
                                     {" 3 ", 3},
                                     {"7", 3},
                                     {"0", 2},
                                     {"abc", 2},
                                     {"", 2},
                                     {"-1", -1},
                                     {"2.5", 2},
                                     {"1st", 1},
                                     {"1e39", 3},
                                     {"-99999", -32768}}) {
        Scenario scene("@");
        scene.Services.Settings().clear();
        scene.Services.Answers = {"yes", text};
        scene.Board.ResetStart();
        scene.Board.ResetStart();
        EXPECT_TRUE(scene.Board.AutoMoveOn);
        EXPECT_EQ(scene.Board.AutoMoveMode, mode) << text;
        EXPECT_THAT(
            scene.Services.Log,
            ElementsAre(
                "box 36 Do you want to the form to move automatically?", "[AutoMove] MOVE=True",
                "input What mode do you want, 1:Centre, 2: Gradual Centre, 3: Edge of screen",
                "[AutoMove] MODE=" + std::to_string(mode)));
    }
    for (const auto& [move, mode, on, number] : {std::tuple{"tRUE", " 3 ", true, 3},
                                                 {"False", "2", false, 2},
                                                 {"yes", "2x", false, 0},
                                                 {"True", "1.5", true, 2},
                                                 {"True", "1e9", true, 32767}}) {
        Scenario scene("@");
        scene.Services.Settings() =
            std::string("[AutoMove]\nMOVE=") + move + "\nMODE=" + mode + "\n";
        scene.Board.ResetStart();
        EXPECT_EQ(scene.Board.AutoMoveOn, on) << move;
        EXPECT_EQ(scene.Board.AutoMoveMode, number) << mode;
        EXPECT_TRUE(scene.Services.Log.empty());
    }
}

} // namespace

} // namespace tumbledeep
