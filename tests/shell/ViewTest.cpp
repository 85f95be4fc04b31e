// The following view: strict thresholds, both axes, three modes, and the choice among them.
#include "support/Scenario.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

using testing::ElementsAre;

/// An open board with the player in cell (col, row) and a parent of 15360 by 11520 twips.
struct View : Scenario {
    View(int col, int row, std::int16_t mode) : Scenario("@", "", {col, row}) {
        Board.AutoMoveOn = true;
        Board.AutoMoveMode = mode;
    }
    Window& Form = Board.Form;
};

TEST(View, GlideClosesATenthOfTheGapOrTwice) {
    // The player at Top 0 and Left 0: the glide aims at Top 5400 and at Left 7320.
    struct Case {
        float From, To; ///< of Top less 5400, and of Left less 7320
    };
    for (const Case& c :
         {Case{-720, -648}, Case{-719, -582.39F}, Case{0, 0}, Case{720, 583.2F},
          Case{1599, 1295.19F}, Case{1600, 1440}, Case{9000, 8100}, Case{-9000, -8100}}) {
        View scene(1, 1, 2);
        scene.Form.Top = 5400 + c.From;
        scene.Form.Left = 7320 + c.From;
        scene.Ticks(1);
        EXPECT_NEAR(scene.Form.Top, 5400 + c.To, 0.01F) << c.From;
        EXPECT_NEAR(scene.Form.Left, 7320 + c.To, 0.01F) << c.From;
    }
}

TEST(View, SmallMapGlidesAwayFromItsCentredPlace) {
    Scenario scene(R"(
        ###
        #@#
        ###)");
    EXPECT_EQ(scene.Board.Form.Width, 1095);
    EXPECT_EQ(scene.Board.Form.Height, 1095);
    EXPECT_EQ(scene.Board.Form.Left, 7680 - 547.5F);
    EXPECT_EQ(scene.Board.Form.Top, 5760 - 547.5F - 720);
    scene.Ticks(5);
    EXPECT_EQ(scene.Board.Form.Top, 5760 - 547.5F - 720) << "switched off";
    scene.Board.AutoMoveOn = true;
    scene.Ticks(200);
    EXPECT_NEAR(scene.Board.Form.Top, 5760 - 360 - 360, 1);
    EXPECT_NEAR(scene.Board.Form.Left, 7680 - 360 - 360, 1);
}

TEST(View, EdgeFlipsByAPageAtStrictThresholds) {
    struct Case {
        float Place, After; ///< of the player in the parent
    };
    const auto check = [](float Window::*side, const Case& c) {
        View scene(1, 1, 3);
        scene.Form.Top = scene.Form.Left = 5000;
        scene.Form.*side = c.Place;
        scene.TickNumber(10);
        EXPECT_EQ(scene.Form.*side, c.After) << c.Place;
    };
    for (const Case& c : {Case{9720, 9720}, Case{9721, -719}, Case{-720, -720}, Case{-721, 9719},
                          Case{25000, 14560}, Case{-20000, -9560}}) {
        check(&Window::Top, c);
    }
    for (const Case& c : {Case{14280, 14280}, Case{14281, 1}, Case{0, 0}, Case{-1, 14279},
                          Case{30000, 15720}, Case{-20000, -5720}}) {
        check(&Window::Left, c);
    }
    View stays(1, 1, 3);
    stays.Form.Top = 9721;
    stays.Form.Left = 14281;
    stays.Ticks(40);
    EXPECT_EQ(stays.Form.Top, -719) << "a flip lands inside the opposite threshold";
    EXPECT_EQ(stays.Form.Left, 1);
    stays.Form.Top = 20000;
    stays.TickNumber(11);
    EXPECT_EQ(stays.Form.Top, 20000) << "only at multiples of ten";
    stays.Board.AutoMoveOn = false;
    stays.TickNumber(20);
    EXPECT_EQ(stays.Form.Top, 20000);
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
        const bool upright = c.Key == 'w' || c.Key == 's';
        const auto nudge = [&](bool moves, bool refused) {
            View scene(c.Place, c.Place, c.Mode);
            float& side = upright ? scene.Form.Top : scene.Form.Left;
            side = c.Side;
            (upright ? scene.Form.Height : scene.Form.Width) = c.Size;
            (upright ? scene.Board.ViewMovesY : scene.Board.ViewMovesX) = moves;
            for (const Offset to : HeadingOffsets) {
                if (refused) scene.Board.Area(Near(scene.Board.You, to)) = Kind::HardDirt;
            }
            scene.Type(std::string(1, c.Key));
            return side - c.Side;
        };
        EXPECT_EQ(nudge(true, false), c.Moves) << c.Key << ' ' << c.Side << ' ' << c.Size;
        EXPECT_EQ(nudge(false, false), 0);
        EXPECT_EQ(nudge(true, true), 0) << "a refused step moves nothing";
    }
}

TEST(View, BoardIsSizedByWallsAndDirtAlone) {
    Scenario scene(R"(
        .....*
        .:....
        .#.@..
        .....O)");
    EXPECT_EQ(scene.Board.Form.Width, 735);
    EXPECT_EQ(scene.Board.Form.Height, 1095);
    // What does not fit keeps the place that has the player in the middle.
    for (const auto& [size, fits] : {std::pair{1095 + 1080, false}, std::pair{1096 + 1080, true}}) {
        scene.Game.Form.Width = scene.Game.Form.Height = static_cast<float>(size);
        scene.Board.YouStart();
        scene.Board.ViewMovesX = scene.Board.ViewMovesY = true;
        scene.Board.ResizeForm();
        const float half = static_cast<float>(size) / 2;
        EXPECT_EQ(scene.Board.Form.Top, fits ? half - 547.5F - 720 : half - 720);
        EXPECT_EQ(scene.Board.Form.Left, half - 367.5F);
        EXPECT_EQ(scene.Board.ViewMovesY, !fits);
        EXPECT_FALSE(scene.Board.ViewMovesX);
    }
}

TEST(View, FirstRunAsks) {
    struct Case {
        std::string Text;
        int Mode;
    };
    const std::string ask = "box 36 Do you want to the form to move automatically?";
    const std::string askMode =
        "input What mode do you want, 1:Centre, 2: Gradual Centre, 3: Edge of screen";
    for (const Case& c : {Case{"1", 1}, Case{" 3 ", 3}, Case{"7", 3}, Case{"0", 2}, Case{"abc", 2},
                          Case{"", 2}, Case{"-1", -1}, Case{"2.5", 2}, Case{"0.5", 2},
                          Case{"1st", 1}, Case{"1e39", 3}, Case{"-99999", -32768}}) {
        Scenario scene("@");
        scene.Services.Settings().clear();
        scene.Services.Answers = {"yes", c.Text};
        scene.Board.ResetStart();
        EXPECT_TRUE(scene.Board.AutoMoveOn);
        EXPECT_EQ(scene.Board.AutoMoveMode, c.Mode) << c.Text;
        EXPECT_THAT(scene.Services.Log, ElementsAre(ask, "[AutoMove] MOVE=True", askMode,
                                                    "[AutoMove] MODE=" + std::to_string(c.Mode)));
    }
    Scenario scene("@");
    scene.Services.Settings().clear();
    scene.Board.ResetStart();
    EXPECT_FALSE(scene.Board.AutoMoveOn);
    EXPECT_THAT(scene.Services.Log, ElementsAre(ask, "[AutoMove] MOVE=False", "[AutoMove] MODE=2"));
    scene.Services.Log.clear();
    scene.Board.ResetStart();
    EXPECT_TRUE(scene.Services.Log.empty()) << "asked once";
}

TEST(View, StoredChoiceIsTakenWithoutALimit) {
    struct Case {
        const char *Move, *Mode;
        bool On;
        int Number;
    };
    for (const Case& c :
         {Case{"True", "1", true, 1}, Case{"tRUE", " 3 ", true, 3}, Case{"False", "2", false, 2},
          Case{"yes", "2", false, 2}, Case{"True", "99", true, 99}, Case{"True", "-1", true, -1},
          Case{"True", "2x", true, 0}, Case{"True", "", true, 0}, Case{"True", "1.5", true, 2},
          Case{"True", "1e9", true, 32767}}) {
        Scenario scene("@");
        scene.Services.Settings() =
            std::string("[AutoMove]\nMOVE=") + c.Move + "\nMODE=" + c.Mode + "\n";
        scene.Board.ResetStart();
        EXPECT_EQ(scene.Board.AutoMoveOn, c.On) << c.Move;
        EXPECT_EQ(scene.Board.AutoMoveMode, c.Number) << c.Mode;
        EXPECT_TRUE(scene.Services.Log.empty());
    }
    Scenario off("@");
    off.Board.AutoMoveChange(true, 3);
    off.Board.AutoMoveChange(false, 0);
    EXPECT_FALSE(off.Board.AutoMoveOn);
    EXPECT_EQ(off.Board.AutoMoveMode, 3) << "switching off keeps the mode";
    EXPECT_EQ(off.Services.Log.back(), "[AutoMove] MODE=3");
}

} // namespace

} // namespace tumbledeep
