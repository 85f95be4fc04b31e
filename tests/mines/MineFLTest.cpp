// The FL mine: the order of its four blocks, and its one-eyed kill.
#include "support/Scenario.h"

namespace tumbledeep {

constexpr auto MineFLTick = &frmDocument::MineFLTick;

TEST(MineFL, RunsStraightAndTurnsWhereItIsStopped) {
    PlayFilms(R"(
        = a run bends down without a pause, a fall bends right with one
            F.#.   .F#.   ..#.   ..#.   ..#.
            ....   ....   .F..   .F..   ..F.
            .:..   .:..   .:..   .:..   .:..
        = up when down is not free, in the same call
            .#   F#
            F#   .#
            ##   ##
        = left prefers down as right does | F:L
            #F   #.
            #.   #F
        = up prefers left and loses the call | F:U
            ###   ###   ###
            .F.   .F.   F..
        = down prefers right and loses the call | F:D
            .F.   .F.   ..F
            ###   ###   ###
        = an odd tag neither moves nor kills | F:r
            F@   F@   F@)",
              MineFLTick);
}

TEST(MineFL, ShutInComesToRestOnR) {
    for (const auto& [start, tags] : {std::pair{"F:R", "RR"}, std::pair{"F:U", "RR"},
                                      std::pair{"F:L", "RR"}, std::pair{"F:D", "LR"}}) {
        Scenario scene("###\n#F#\n###", start);
        std::string seen;
        for (int i = 0; i < 2; ++i) {
            scene.Run(MineFLTick);
            seen += scene.Board.MovingMineFL.Tag[1];
        }
        EXPECT_EQ(seen, tags) << start;
        EXPECT_EQ(scene.Board.MovingMineFL.Picture[1], Picture::MovingMineFLRightPic);
    }
}

TEST(MineFL, KillsAheadAlone) {
    PlayFilms(R"(
        = ahead after a step, not touching | F:L dies
            @..F   @.F.   @F..
        = down after a turn and a step | dies
            F#   .#
            .#   F#
            @#   @#
        = the player blocks it, it turns and looks back | F:U dies
            #@#   #@#
            #F#   #F#
        = beside it
            F..   .F.
            .@.   .@.
        = below it, when it is stopped running right
            .#   .#
            #F#  #F#
            .@   .@)",
              MineFLTick);
}

TEST(MineFL, SaysLessWhenItKillsRunningRight) {
    const std::string asked = "box 36 Do you want to play again?";
    for (const auto& [strip, tag] : {std::pair{"F@", "F:R"}, std::pair{"@F", "F:L"}}) {
        Scenario scene(strip, tag);
        scene.Run(MineFLTick);
        std::vector<std::string> log{asked, "end"};
        if (*strip == '@') log.insert(log.begin(), "box 16 You died, with 0 gems remaining");
        EXPECT_EQ(scene.Services.Log, log);
        EXPECT_TRUE(scene.Board.YouDead);
    }
}

} // namespace tumbledeep
