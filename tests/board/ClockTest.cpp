// The clock: its cycle, who is due when and in which order, and what stops it.
#include "support/Scenario.h"

namespace tumbledeep {

TEST(Clock, CycleServesEachKindAtItsMultiples) {
    const std::string run(70, '.');
    const std::string wall = "\n" + std::string(71, '#') + "\n";
    Scenario scene(wall + "L" + run + wall + "R" + run + wall + "F" + run + wall + "P" + run +
                   wall);
    Scenario shafts("O..*..T");
    std::vector<int> falls;
    for (int i = 0; i < 301; ++i) {
        const float before = shafts.Board.RoundRock.Top[1];
        scene.Ticks(1);
        shafts.Ticks(1);
        if (shafts.Board.RoundRock.Top[1] != before) falls.push_back(shafts.Board.TickCount);
    }
    ASSERT_EQ(scene.Board.TickCount, 0) << "a cycle has 301 ticks";
    for (const Pool* pool :
         {&scene.Board.MovingMineL, &scene.Board.MovingMineR, &scene.Board.MovingMineFL}) {
        EXPECT_EQ(pool->Left[1], 31 * 360);
    }
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
    EXPECT_TRUE(scene.Services.Log.starts_with("box 16 You won; "));
}

TEST(Clock, EventsThatStopAndStartIt) {
    Scenario scene("@.");
    bool& enabled = scene.Board.Interval100Timer.Enabled;
    scene.Board.Form_MouseDown(1);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(scene.Board.MoveReady);
    scene.Type("p");
    EXPECT_TRUE(enabled);
    scene.Board.Form_LostFocus();
    EXPECT_FALSE(enabled);
    scene.Board.Form_GotFocus();
    EXPECT_TRUE(enabled);
    scene.Type("p");
    EXPECT_FALSE(enabled);
    scene.Board.Form_GotFocus();
    EXPECT_TRUE(enabled) << "a focus ends any pause";
}

} // namespace tumbledeep
