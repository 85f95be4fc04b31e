// What bots and scripts find out about small maps.
#include "map/bots/Progress.h"
#include "map/measure/MapMeasure.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Scripts {
    const char* Solution = nullptr;
    const char* Bait = nullptr;
};

MapMeasure Measured(const std::string& board, const Scripts& scripts = {}, bool quick = true) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path / "solutions");
    folder.Write("m.txt", "board\n" + board);
    if (scripts.Solution != nullptr) folder.Write("solutions/m.script", scripts.Solution);
    if (scripts.Bait != nullptr) folder.Write("solutions/m.bait.script", scripts.Bait);
    folder.Write("solutions/many.script", "at 1 type d\n");
    Progress bar("");
    return MeasureMap((folder.Path / "m.txt").string(), {quick, 1}, bar);
}

TEST(Measure, GreedPushesAndMindsNoDanger) {
    const MapMeasure push = Measured("#######\n"
                                     "#@O  *#\n"
                                     "###.###\n"
                                     "#  *  #\n"
                                     "#######\n",
                                     {}, false);
    EXPECT_EQ(push.GreedyWins, 0) << "the rock sticks in front of the gem";
    EXPECT_FALSE(push.Search->IsWon);
    const MapMeasure row =
        Measured("########\n"
                 "#@O    #\n"
                 "####.###\n"
                 "#* .   #\n"
                 "########\n",
                 {"at 1 type d\nat 13 type d\nat 60 click\nat 260 click\nat 261 press Down\n"
                  "at 280 release Down\n"},
                 false);
    EXPECT_EQ(row.GreedyWins, 1);
    EXPECT_TRUE(row.Search->IsWon);
}

TEST(Measure, ScriptsOfAMapAreFoundAndHeldToTheirClass) {
    const char* const board = "#######\n"
                              "#@ * O#\n"
                              "#### *#\n"
                              "#######\n";
    const char* const wins = "at 9 press Right\nat 60 type d\nat 72 type s\n";
    const MapMeasure good = Measured(board, {wins, "at 9 type d\n"});
    EXPECT_THAT(Misses(good, 'M'), IsEmpty());
    EXPECT_EQ(good.Best()->Study.Keys, 3);
    EXPECT_THAT(Misses(Measured(board, {wins, wins}), 'H'),
                ElementsAre("m.bait.script wins 100 in 100, at most 0 in 100"));
    EXPECT_THAT(Misses(Measured(board), 'M'),
                ElementsAre("there is no solution", "there is no bait"));
    const char* const slow = "at 9 press Right\nat 60 release Right\nat 600 type s\n";
    EXPECT_THAT(Misses(Measured(board, {slow}), 'T'),
                ElementsAre("the solution waits for more than 5 seconds"));
}

TEST(Measure, ANewcomerIsSafeAtTheStart) {
    const MapMeasure patrol = Measured("#####\n"
                                       "#@.L#\n"
                                       "#*###\n"
                                       "#####\n");
    EXPECT_EQ(patrol.SafeFirstSteps, 3);
    EXPECT_THAT(Misses(patrol, 'T'), testing::Contains("a first step kills"));
    const MapMeasure idle = Measured("#####\n"
                                     "# O #\n"
                                     "#   #\n"
                                     "# @*#\n"
                                     "#####\n");
    EXPECT_THAT(Misses(idle, 'T'), testing::Contains("it ends untouched"));
}

} // namespace

} // namespace tumbledeep
