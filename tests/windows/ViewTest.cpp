// The following view: its thresholds, each of which is strict, on both axes in all three modes, the
// place at the start, and the choice among the modes.
#include "support/Game.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

/// An open board with the player in cell (place, place) and a parent of 15360 by 11520 twips.
struct View : Game {
    View(int place, int mode) : Game(place, place) {
        Board.AutoMoveOn = true;
        Board.AutoMoveMode = static_cast<ViewMode>(mode);
    }
    Window& Form = Board.Form;
};

TEST(View, GlideClosesATenthOfTheGapOrTwice) {
    // The player at Left 0: the glide aims at Left 7320. Places less that aim.
    using Case = std::pair<float, float>;
    for (const auto& [from, to] : {Case{-720, -648}, Case{-719, -582.39F}, Case{1599, 1295.19F},
                                   Case{1600, 1440}, Case{-9000, -8100}}) {
        View scene(1, 2);
        scene.Form.Left = 7320 + from;
        scene.Ticks(1);
        EXPECT_NEAR(scene.Form.Left, 7320 + to, 0.01F) << from;
    }
}

TEST(View, BoardThatDoesNotFitIsLaidAtTheEdgeNearWhichThePlayerStarts) {
    // Place of the player and size of the board along both axes; Left and Top in a parent of 15360
    // by 11520: at the near edge, in the middle, at the far edge, and with both edges near.
    using Case = std::tuple<int, int, float, float>;
    for (const auto& [you, cells, left, top] :
         {Case{0, 100, 180, 180}, Case{16 * 360, 100, 180, 0}, Case{21 * 360, 100, 180, -1800},
          Case{50 * 360, 100, 7680 - 18000, 5760 - 18000},
          Case{98 * 360, 100, 15360 - 36015 - 540, 11520 - 1080 - 36015 - 180},
          Case{20 * 360, 41, 15360 - 14775 - 540, -1440},
          Case{15 * 360, 30, 2272.5F, 11520 - 1080 - 10815 - 180}}) {
        const std::string end = " " + std::to_string((cells - 1) * 360);
        const std::string start = " " + std::to_string(you);
        const Game scene("you" + start + start + "\nharddirt" + end + end + "\ngem1type 0 0\n");
        EXPECT_EQ(scene.Board.Form.Left, left) << you;
        EXPECT_EQ(scene.Board.Form.Top, top) << you;
    }
}

TEST(View, EdgeFlipsByAPageAtStrictThresholds) {
    using Case = std::tuple<float Window::*, float, float>;
    constexpr auto top = &Window::Top;
    constexpr auto left = &Window::Left;
    for (const auto& [side, place, after] :
         {Case{top, 9720, 9720}, Case{top, 9721, -719}, Case{top, -720, -720},
          Case{top, -721, 9719}, Case{left, 14280, 14280}, Case{left, 14281, 1}, Case{left, 0, 0},
          Case{left, -1, 14279}}) {
        View scene(1, 3);
        scene.Form.Top = scene.Form.Left = 5000;
        scene.Form.*side = place;
        scene.Ticks(9);
        EXPECT_EQ(scene.Form.*side, place) << "only at multiples of ten";
        scene.Ticks(11);
        EXPECT_EQ(scene.Form.*side, after) << place;
    }
}

TEST(View, WalkNudgesTheBoardInMode1) {
    // Key, column and row of the player before the step, near side and size of the board, and by
    // how much it moves. In pairs on both sides of a limit: the player at 6784, 4736, 8704 and
    // 7680 in the parent for "w", "s", "a" and "d", the near side at 0, the far one at 10270 and
    // 15000.
    using Case = std::tuple<char, int, float, float, float>;
    for (const auto& [key, place, from, size, moves] :
         {Case{'w', 30, -3296, 0, 0}, Case{'w', 30, -3297, 0, 360}, Case{'w', 10, 0, 0, 0},
          Case{'w', 10, -1, 0, 360}, Case{'s', 30, -6064, 20000, 0},
          Case{'s', 30, -6063, 20000, -360}, Case{'s', 30, -6000, 16270, 0},
          Case{'s', 30, -6000, 16271, -360}, Case{'a', 30, -1376, 0, 0},
          Case{'a', 30, -1377, 0, 360}, Case{'a', 10, 0, 0, 0}, Case{'a', 10, -1, 0, 360},
          Case{'d', 30, -3120, 30000, 0}, Case{'d', 30, -3119, 30000, -360},
          Case{'d', 30, -3000, 18000, 0}, Case{'d', 30, -3000, 18001, -360}}) {
        View scene(place, 1);
        const bool upright = key == 'w' || key == 's';
        float& side = upright ? scene.Form.Top : scene.Form.Left;
        side = from;
        (upright ? scene.Form.Height : scene.Form.Width) = size;
        scene.Board.ViewMovesX = scene.Board.ViewMovesY = true;
        scene.Type({key});
        EXPECT_EQ(side - from, moves) << key << from << ' ' << size;
    }
}

TEST(View, ModeTypedOnTheFirstRun) {
    using Typed = std::pair<const char*, int>;
    for (const auto& [text, mode] :
         {Typed{" 3 ", 3}, Typed{"7", 3}, Typed{"0", 2}, Typed{"abc", 2}, Typed{"-1", -1},
          Typed{"2.5", 2}, Typed{"1st", 1}, Typed{"1e39", 3}, Typed{"-99999", -32768}}) {
        Game scene;
        scene.Services.Settings().clear();
        scene.Services.Answers = {"yes", text};
        scene.Board.ResetStart();
        EXPECT_EQ(static_cast<int>(scene.Board.AutoMoveMode), mode) << text;
        EXPECT_THAT(scene.Services.Log,
                    testing::StartsWith("box 36 Do you want to the form to move automatically?; "));
    }
}

TEST(View, StoredChoiceIsTakenAsItIs) {
    using Case = std::tuple<const char*, const char*, bool, int>;
    for (const auto& [move, mode, on, number] :
         {Case{"tRUE", "7", true, 7}, Case{"True ", "2", false, 2}, Case{"1", "1", false, 1},
          Case{"True", "2x", true, 0}, Case{"True", "2.5", true, 2}, Case{"True", "", true, 0}}) {
        Game scene;
        scene.Services.Settings() =
            std::string("[AutoMove]\nMOVE=") + move + "\nMODE=" + mode + "\n";
        scene.Board.ResetStart();
        EXPECT_EQ(scene.Board.AutoMoveOn, on) << move;
        EXPECT_EQ(static_cast<int>(scene.Board.AutoMoveMode), number) << mode;
    }
}

TEST(View, StatusBarKeepsRoomForASign) {
    Game scene;
    scene.Ticks(30);
    EXPECT_EQ(scene.Main.Info.Panel, "Gems Remaining:  1");
    Game empty("");
    empty.Board.GemTotal = 0;
    empty.Ticks(30);
    EXPECT_EQ(empty.Main.Info.Panel, "Gems Remaining: -1");
}

} // namespace

} // namespace tumbledeep
