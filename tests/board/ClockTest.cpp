// The clock: its cycle, who is due when and in which order, and what stops it.
#include "support/Scenario.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

using testing::Contains;

constexpr int Cycle = 301;

TEST(Clock, CycleServesEachKindAtItsMultiples) {
    const std::string run(70, '.');
    const std::string wall(71, '#');
    Scenario scene(wall + "\nL" + run + "\n" + wall + "\nR" + run + "\n" + wall + "\nF" + run +
                   "\n" + wall + "\nP" + run + "\n" + wall);
    Scenario shafts("O..*..T");
    std::vector<int> falls;
    for (int i = 0; i < Cycle; ++i) {
        const float before = shafts.Board.RoundRock.Top[1];
        scene.Ticks(1);
        shafts.Ticks(1);
        if (shafts.Board.RoundRock.Top[1] != before) falls.push_back(shafts.Board.TickCount);
    }
    ASSERT_EQ(scene.Board.TickCount, 0) << "a cycle has 301 ticks";
    EXPECT_EQ(scene.Board.MovingMineL.Left[1], 31 * 360);
    EXPECT_EQ(scene.Board.MovingMineR.Left[1], 31 * 360);
    EXPECT_EQ(scene.Board.MovingMineFL.Left[1], 31 * 360);
    EXPECT_EQ(scene.Board.MovingMineP.Left[1], 16 * 360);
    EXPECT_EQ(shafts.Board.Gem1Type.Top[1], 51 * 360);
    EXPECT_EQ(shafts.Board.MovingMineT.Top[1], 31 * 360);
    ASSERT_EQ(falls.size(), 51U);
    EXPECT_EQ(falls[49], 300);
    EXPECT_EQ(falls[50], 0);
}

TEST(Clock, GemTakenOnATickIsCountedAtTheNextMultipleOfTen) {
    Scenario scene("*\n@");
    scene.TickNumber(30);
    EXPECT_EQ(scene.Board.Gem1Type.HiddenCount(), 2);
    EXPECT_EQ(scene.Game.Info.Panel, "Gems Remaining:  1");
    scene.Ticks(9);
    EXPECT_FALSE(scene.Ended);
    scene.Ticks(1);
    EXPECT_THAT(scene.Services.Log, Contains("box 16 You won"));
}

TEST(Clock, StatusShowsABlankBeforeANumberThatIsNotNegative) {
    FakePlatform services;
    frmMain idle(services);
    EXPECT_EQ(idle.Info.Panel, "Gems Remaining:");
    for (int i = 0; i < 30; ++i) idle.ActiveChild.Interval100Timer_Timer();
    EXPECT_EQ(idle.Info.Panel, "Gems Remaining: -1") << "no map, and nobody has won";
    EXPECT_TRUE(services.Log.empty());
}

TEST(Clock, DeadPlayerKeepsOutTheArrowsAlone) {
    Scenario scene(R"(
        @.O   @..
        ...   ..O)");
    scene.Services.KeysDown = {39};
    scene.Board.YouDead = true;
    scene.TickNumber(6);
    EXPECT_TRUE(scene.Next());
}

TEST(Clock, EventsThatStopAndStartIt) {
    Scenario scene("@.");
    bool& enabled = scene.Board.Interval100Timer.Enabled;
    EXPECT_EQ(scene.Board.Interval100Timer.Interval, 10);
    ASSERT_TRUE(enabled);
    scene.Board.Form_MouseDown(2);
    EXPECT_TRUE(enabled) << "the right button says nothing";
    scene.Board.Form_MouseDown(1);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(scene.Board.MoveReady);
    scene.Type("p");
    EXPECT_TRUE(enabled);
    EXPECT_TRUE(scene.Board.MoveReady) << "a start by p leaves it";
    scene.Board.Form_LostFocus();
    scene.Board.Form_LostFocus();
    EXPECT_FALSE(enabled);
    scene.Board.Form_GotFocus();
    scene.Board.Form_GotFocus();
    EXPECT_TRUE(enabled);
    scene.Type("p");
    EXPECT_FALSE(enabled);
    scene.Board.Form_GotFocus();
    EXPECT_TRUE(enabled) << "a focus ends any pause";
    scene.Board.Form_MouseMove(2);
    EXPECT_EQ(scene.Services.Drags, 0);
    scene.Board.Form_MouseMove(1);
    EXPECT_EQ(scene.Services.Drags, 1);
}

} // namespace

} // namespace tumbledeep
