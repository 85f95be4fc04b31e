// Steps, pushes and pauses, and whether the player is ready for the next key.
#include "support/Scenario.h"

namespace tumbledeep {

namespace {

/// A step on one line of cells, drawn in the direction of the step.
struct Step {
    std::string Before, After;
    bool Ready;
};

/// The strip of a step whose cells stand below one another or, with a space, beside one another.
void ExpectStep(Step step, bool upright, bool backwards, const char* key) {
    if (backwards) {
        std::reverse(step.Before.begin(), step.Before.end());
        std::reverse(step.After.begin(), step.After.end());
    }
    std::string strip =
        "= " + step.Before + " | key:" + key + (step.Ready ? " ready\n" : " busy\n");
    if (!upright) strip += step.Before + " " + step.After;
    for (std::size_t i = 0; upright && i < step.Before.size(); ++i) {
        strip += std::string{step.Before[i], ' ', step.After[i], '\n'};
    }
    PlayFilms(strip);
}

TEST(MoveYou, StepsAndPushes) {
    for (const Step& step :
         {Step{"@.", ".@", false}, Step{"@:", ".@", false}, Step{"@*", ".@", false},
          Step{"@#", "@#", true}, Step{"@X", "@X", true}, Step{"@L.", "@L.", true},
          Step{"@R.", "@R.", true}, Step{"@F.", "@F.", true}, Step{"@P.", "@P.", true},
          Step{"@O.", ".@O", false}, Step{"@T.", ".@T", false}, Step{"@O:", "@O:", true},
          Step{"@O*", "@O*", true}, Step{"@O#", "@O#", true}, Step{"@OO.", "@OO.", true},
          Step{"@OT.", "@OT.", true}, Step{"@TO.", "@TO.", true}, Step{"@OX", "@OX", true}}) {
        ExpectStep(step, false, false, "d");
        ExpectStep(step, false, true, "a");
    }
    for (const Step& step :
         {Step{"@.", ".@", false}, Step{"@:", ".@", true}, Step{"@*", ".@", true},
          Step{"@#", "@#", true}, Step{"@X", "@X", true}, Step{"@O.", "@O.", true},
          Step{"@T.", "@T.", true}, Step{"@L.", "@L.", true}}) {
        ExpectStep(step, true, false, "s");
        ExpectStep(step, true, true, "w");
    }
}

TEST(MoveYou, ReadinessWithinOneTick) {
    PlayFilms(R"(
        = a column that was once dirt is run along | key:www,ss ready
            :   @   .
            :   .   .
            :   .   @
            @   .   .
        = an open one is not | key:ww busy
            .   .
            .   @
            @   .
        = one step sideways | key:dd busy
            @..   .@.
        = p drops keys until it has started the clock and a tick has run | key:p,d,pd,.dd
            @...   @...   @...   @...   .@..
        = a refused push leaves the next key | key:da busy
            .@O#   @.O#
        = at a multiple of six: up the dug cell and then left | held:UL tick:6
            .:   @.
            .@   ..
        = up the open cell alone | held:UL tick:6
            ..   .@
            .@   ..
        = up the dug cell and back | held:UD tick:6
            :    .
            @    @
        = a refused first key leaves the next | held:UR tick:6
            ##   ##
            @.   .@
        = one step at a poll | held:R key:.....,.,.....,.
            @..   @..   .@.   .@.   ..@)");
}

TEST(MoveYou, EdgeOfTheGridIsAWall) {
    PlayFilms(R"(
        = the cell beyond is column -1 | key:a at:0,1 ready
            O@   O@
        = column 0 is free to push into | key:a at:0,1 busy
            .O@   O@.
        = column 301 | key:d at:299,1 ready
            @O   @O
        = the player enters column 0 and no further | key:a,.a at:0,1 ready
            .@   @.   @.
        = row 0 | key:w,.w at:1,0 ready
            .   @   @
            @   .   .
        = the last column | key:d at:300,1 ready
            @   @
        = the last row | key:s at:1,300 ready
            @   @)");
}

TEST(MoveYou, KeysAreExactAndGemsComeBack) {
    for (const char* key : {"W", "A", "S", "D", "P", "dd", "d ", "x", "\xC3\xA4"}) {
        Scenario scene("*@. *@.");
        scene.Board.Area(1, 1) = Kind::Dirt;
        scene.Board.Input_Box.Text = key;
        scene.Board.Input_Box_Change();
        EXPECT_EQ(scene.Board.Input_Box.Text, "");
        EXPECT_TRUE(scene.Next()) << key;
        EXPECT_TRUE(scene.Board.MoveReady);
        EXPECT_TRUE(scene.Board.Interval100Timer.Enabled);
    }
    Scenario busy("*@");
    busy.Board.Area(1, 1) = Kind::Dirt;
    busy.Board.MoveReady = false;
    busy.Type("x");
    EXPECT_EQ(busy.AreaAt(1, 1), Kind::Dirt) << "only on an accepted key";
}

TEST(MoveYou, StoppedByAClickThePlayerStepsUntilNotReady) {
    Scenario scene(R"(
        ..   .@
        .:   ..
        .@   ..)");
    scene.Board.Form_MouseDown(1);
    scene.Type("wwa");
    EXPECT_TRUE(scene.Next());
}

TEST(MoveYou, LeftScanTakesTheCellJustLeftAsWell) {
    for (const auto& [strip, key, shown] :
         {std::tuple{".@ @.", "a", false}, std::tuple{"@. .@", "d", true}}) {
        Scenario scene(strip);
        const PoolSprite under = scene.Board.Dirt.Add();
        under.Left = scene.Board.You.Left;
        under.Top = scene.Board.You.Top;
        under.Visible = true;
        scene.Type(key);
        EXPECT_TRUE(scene.NextArea());
        EXPECT_EQ(scene.Board.Dirt.Shown(1), shown) << key;
    }
}

TEST(MoveYou, HiddenSpriteAtALowerIndexEndsTheScan) {
    Scenario scene(R"(
        *   2   *
        @   .   .)");
    const PoolSprite second = scene.Board.Gem1Type.Add();
    second.Left = second.Top = 0;
    second.Visible = true;
    scene.Board.Gem1Type.Visible[1] = false;
    scene.Type("w");
    EXPECT_TRUE(scene.NextSprites());
    EXPECT_EQ(scene.AreaAt(1, 1), Kind::You);
    scene.Type("x");
    EXPECT_TRUE(scene.NextArea()) << "the gem takes the player's own cell";
}

TEST(MoveYou, PushTestDecidesBySpriteAndCellApart) {
    Scenario noRock("@.. @..");
    noRock.Board.Area(2, 1) = Kind::RoundRock;
    noRock.Type("d");
    EXPECT_TRUE(noRock.NextSprites());
    EXPECT_EQ(noRock.AreaAt(2, 1), Kind::RoundRock);
    EXPECT_FALSE(noRock.Board.MoveReady) << "a push that passed its test, though nothing moved";

    // Between two rows a rock belongs to the nearer one, a T mine to the upper one.
    for (const auto& [strip, row, left] :
         {std::tuple{"@O.", 2, 720}, std::tuple{"@T.", 2, 360}, std::tuple{"@T.", 1, 720}}) {
        Scenario scene(strip, "", {1, row});
        Pool& pool = strip[1] == 'O' ? scene.Board.RoundRock : scene.Board.MovingMineT;
        pool.Top[1] = 0.6F * Pitch;
        scene.Type("d");
        EXPECT_EQ(pool.Left[1], left) << strip << " in row " << row;
    }
}

} // namespace

} // namespace tumbledeep
