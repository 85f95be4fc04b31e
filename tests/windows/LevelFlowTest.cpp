// What follows a win and a death: boxes, settings and processes in order. That a map is over is
// found in films/GameEndTest.cpp.
#include "support/Game.h"

#include <gtest/gtest.h>

namespace tumbledeep {

namespace {

using Answers = std::deque<std::string>;

/// A board on which map "two.TBM" runs.
struct Running : Game {
    explicit Running(const Answers& answers = {}) {
        Board.Form.Caption = "two.TBM";
        Main.CurrentMap = "two.TBM";
        Services.Answers = answers;
    }
};

const std::string StartsAnew = "start .\\tumbledeep; end";

TEST(Level, WinAsksAndGoesOnThroughTheList) {
    using Case = std::tuple<const char*, const char*, Answers, std::string>;
    const std::string read = "read .\\Default.TBL; ";
    const std::string load = "[Level] LOAD=";
    const std::string ask = "Default.TBL Do you want to try and locate it?; ";
    const std::string lost =
        read + "box 36 I couldn't find the next level in the current map list " + ask;
    const std::string locate = lost + "open .; Open; TBM maplist (*.TBL)|*.TBL; ";
    const std::vector<Case> cases{
        {"", "two\nx", {"no"}, "end"},
        {"", "one\r\ntwo\r\nto go\r\n", {"yes"}, read + load + "to go.TBM; " + StartsAnew},
        {"far", "", {"yes"}, "read .\\far.TBL; " + load + "four.TBM; " + StartsAnew},
        {"", "one\ntwo\n", {"yes"}, read + "box 0 There are no morelevels!; end"},
        {"", "", {"yes"}, read + "box 0 There are no morelevels!; end"},
        {"", "two\na\ntwo\nb\n", {"yes"}, read + load + "a.TBM; " + StartsAnew},
        {"", "two\n\nb\n", {"yes"}, read + load + ".TBM; " + StartsAnew},
        {"none",
         "two\nb\n",
         {"yes"},
         "read .\\none.TBL; box 16 The map list none.TBL can't be opened.; end"},
        {"", "Two\nx\n", {"yes", "no"}, lost + "end"},
        {"", "x\n", {"yes", "yes", ""}, locate + "[Level] STARTMAP=False; end"},
        {"",
         "x\n",
         {"yes", "yes", "Z:\\else\\far.TBL"},
         locate + "read .\\far.TBL; " + load + "four.TBM; " + StartsAnew}};
    for (const auto& [list, records, answers, then] : cases) {
        Running scene(answers);
        scene.Services.Settings() = std::string("[Level]\nMAPLIST=") + list;
        scene.Services.Files["Z:\\game\\Default.TBL"] = records;
        scene.Services.Files["Z:\\game\\far.TBL"] = "two,four";
        scene.Board.Pools[Kind::Gem1Type].Hide(1);
        scene.Ticks(10);
        EXPECT_EQ(scene.Services.Log,
                  "box 16 You won; box 36 Do you want to play the next level?; " + then);
    }
}

TEST(Level, DeathTellsTheLastRecountAndTriesAgain) {
    const std::string asks = "box 36 Do you want to play again?; ";
    const std::string tells = "box 16 You died, with 1 gems remaining; ";
    const std::string again = "[Level] LOAD=two.TBM; start .\\tumbledeep ; end";
    for (const auto& [road, answer, log] : {std::tuple{Outcome::Died, "yes", tells + asks + again},
                                            {Outcome::Died, "no", tells + asks + "end"},
                                            {Outcome::DiedUntold, "yes", asks + again}}) {
        Running scene({answer});
        scene.Ticks(10);
        scene.Board.Pools[Kind::Gem1Type].Hide(1); // taken since
        EXPECT_THROW(scene.Board.EndMap(road), ProgramEnd);
        EXPECT_EQ(scene.Services.Log, log);
    }
}

} // namespace

} // namespace tumbledeep
