// The FL mine: the order of its four blocks, and its one-eyed kill.
#include "support/Scenario.h"

namespace tumbledeep {

constexpr auto MineFLTick = &frmDocument::MineFLTick;

TEST(MineFL, RunsStraightAndTurnsWhereItIsStopped) {
    PlayFilms(R"(
        = a run bends down without a pause, a fall bends right with one
            F.#   .F#   ..#   ..#   ..#
            ...   ...   .F.   .F.   ..F
            .:.   .:.   .:.   .:.   .:.
        = up when down is not free, in the same call
            .#   F#
            F#   .#
            ##   ##
        = left prefers down as right does | F:L
            #F   #.
            #.   #F
        = up prefers left, down prefers right, and both lose the call | a=F:U b=F:D
            ####.b.   ####.F.   ####..F
            ##.a.##   ##.F.##   ##F..##
        = an odd tag neither moves nor kills | F:r
            F@   F@   F@)",
              MineFLTick);
}

TEST(MineFL, ShutInComesToRestOnR) {
    using Case = std::pair<const char*, const char*>;
    for (const auto& [start, tags] : {Case{"F:R", "RR"}, Case{"F:U", "RR"}, Case{"F:D", "LR"}}) {
        Scenario scene("###\n#F#\n###", start);
        std::string seen;
        for (int i = 0; i < 2; ++i) {
            scene.Run(MineFLTick);
            seen += scene.Board.MovingMineFL.Tag[1];
        }
        EXPECT_EQ(seen, tags) << start;
    }
}

TEST(MineFL, KillsAheadAlone) {
    PlayFilms(R"(
        = ahead after a step, not touching | F:L dies
            @..F   @.F.   @F..
        = the player blocks it, it turns and looks back | F:U dies
            #@#   #@#
            #F#   #F#
        = below it, when it is stopped running right
            .#   .#
            #F#  #F#
            .@   .@)",
              MineFLTick);
}

TEST(MineFL, SaysLessWhenItKillsRunningRight) {
    const std::string asked = "box 36 Do you want to play again?; end";
    for (const auto& [strip, tag, before] :
         {std::tuple{"F@", "F:R", ""},
          std::tuple{"@F", "F:L", "box 16 You died, with 0 gems remaining; "}}) {
        Scenario scene(strip, tag);
        scene.Run(MineFLTick);
        EXPECT_EQ(scene.Services.Log, before + asked);
    }
}

} // namespace tumbledeep
