// A plan that the search finds is played in the whole program, where it must end as on the board
// alone.
#include "map/Commands.h"
#include "map/LoadSource.h"
#include "map/bots/Replay.h"
#include "map/solve/Search.h"
#include "map/solve/SolutionText.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

// The rock comes down behind its gem, and the patrol passes the last one.
constexpr const char* Danger = "l = movingmineL L\n\n"
                               "board\n"
                               "###########\n"
                               "#.O.#     #\n"
                               "#.*.#  *  #\n"
                               "#@... ### #\n"
                               "#..O#   l #\n"
                               "#.*########\n"
                               "###########\n";

struct Planned {
    Planned() {
        Folder.Write("m.txt", Danger);
        Map = ReadMapSource((Folder.Path / "m.txt").string());
        Start = LoadSource(Map);
        Options.Games = 3;
        Options.Until = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    }
    TempFolder Folder;
    MapSource Map;
    Board Start;
    SearchOptions Options;
};

TEST(Solve, APlanWinsInTheWholeProgram) {
    Planned plan;
    const SearchEnd end = Search(plan.Start, plan.Options, [](int, int) {});
    ASSERT_TRUE(end.IsWon);
    const std::string keys = Shorten(plan.Start, end.Keys, plan.Options);
    EXPECT_LT(keys.size(), end.Keys.size() + 1);
    const Script script = PlanOf({}, keys, BeatTicks);
    EXPECT_EQ(CountWins(plan.Start, script, 9, false), 9);

    plan.Folder.Write("m.script", SolutionText(plan.Map, script));
    const std::string map = (plan.Folder.Path / "m.TBM").string();
    FromPicture(std::vector<std::string_view>{plan.Map.Name, "-o", map});
    for (const char* const seed : {"1", "7"}) {
        const std::string call = "cd " + plan.Folder.Path.string() +
                                 " && rm -f Tumbledeep.ini && " TUMBLEDEEP_TRACE
                                 " --quiet --script m.script m.TBM --seed " +
                                 seed + " > said 2>&1";
        EXPECT_EQ(std::system(call.c_str()), 0);
        EXPECT_THAT(plan.Folder.Read("said"), testing::HasSubstr("You won")) << seed;
    }
}

TEST(Solve, ASearchGoesOnBehindAScript) {
    Planned plan;
    plan.Options.Before = PlanOf({}, "s", BeatTicks);
    const SearchEnd end = Search(plan.Start, plan.Options, [](int, int) {});
    ASSERT_TRUE(end.IsWon);
    const Script script = PlanOf(plan.Options.Before, end.Keys, BeatTicks);
    EXPECT_EQ(script.Events.front().Act.Text, "s");
    EXPECT_EQ(CountWins(plan.Start, script, 3, false), 3);
}

TEST(Solve, LateActsKeepTheirOrder) {
    const Script script = PlanOf({}, "wasdwasdwasd", 3);
    const Script late = Late(script, 5);
    EXPECT_NE(late.Events.front().Step, Late(script, 6).Events.front().Step);
    std::int64_t last = 0;
    for (std::size_t i = 0; i < script.Events.size(); ++i) {
        EXPECT_EQ(late.Events[i].Act.Text, script.Events[i].Act.Text);
        EXPECT_GE(late.Events[i].Step, std::max(last, script.Events[i].Step));
        EXPECT_LE(late.Events[i].Step, script.Events[i].Step + LatestTicks);
        last = late.Events[i].Step;
    }
}

} // namespace

} // namespace tumbledeep
