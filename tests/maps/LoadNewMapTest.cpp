// The loader: what a line makes, what is malformed, and what stays after a failure.
#include "shell/frmMain.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tumbledeep {

namespace {

/// A map as the loader leaves it.
struct Loaded {
    explicit Loaded(const std::string& text) {
        Services.Settings() = "[AutoMove]\nMOVE=False\n";
        Main.MapFile = FieldInput(text);
        try {
            Main.LoadNewMap();
        } catch (const Failure& failure) {
            Number = failure.Number;
        }
    }
    FakePlatform Services;
    frmMain Main{Services};
    frmDocument& Board = Main.ActiveChild;
    int Number = 0; ///< of the failure
};

TEST(LoadNewMap, MalformedLinesFail) {
    std::istringstream lines(
        "dirt|dirt |dirt 0 0 |dirt  0 0|dirt x 0|dirt 0 x|dirt nan 0|dirt inf 0|"
        "dirt 0x10 0|dirt . 0|dirt e5 0|dirt 1e+ 0|dirt - 0|dirt --1 0|"
        "dirt 1.2.3 0|dirt 0 360 x|\"dirt 1,5 0\"|dirt 0\t0|movingmineL 0|"
        "movingmineL 0 R|movingmineL 0  360 R|factory x 0 1:dirt|gem1type 0 R|"
        "you|you x 0|you 0 x");
    for (std::string line; std::getline(lines, line, '|');) {
        EXPECT_EQ(Loaded(line).Number, Failure::TypeMismatch) << line;
    }
    for (const char* line : {"dirt 1e39 0", "dirt 0 -1e39", "dirt 3.5e38 0", "you 1e99999999999 0",
                             "movingmineT 1000000000000000000000000000000000000000 0"}) {
        EXPECT_EQ(Loaded(line).Number, Failure::Overflow) << line;
    }
}

TEST(LoadNewMap, NumbersInAllForms) {
    using Case = std::tuple<const char*, float, float>;
    for (const auto& [line, top, left] :
         {Case{"dirt 5. .5", 5, 0.5F}, Case{"dirt +360 -720", 360, -720},
          Case{"dirt 1E2 1e-60", 100, 0}, Case{"dirt 1e30 3.4e38", 1e30F, 3.4e38F},
          Case{"dirt 00012 1.5e+2", 12, 150}, Case{"dirt 0e99999 0", 0, 0},
          Case{"dirt 360", 360, 360}, // the last word is the second one
          Case{"dirt 0 999 360", 0, 360}, Case{"  dirt 0 360", 0, 360}}) {
        Loaded map(line);
        ASSERT_EQ(map.Board.Dirt.Count(), 2) << line;
        EXPECT_EQ(map.Board.Dirt.Top[1], top) << line;
        EXPECT_EQ(map.Board.Dirt.Left[1], left) << line;
    }
}

TEST(LoadNewMap, FailureLeavesWhatWasMade) {
    Loaded map("you 0 0\ngem1type 0 360\ndirt 360 0\ndirt 720 x\ndirt 1080 0\n");
    EXPECT_EQ(map.Number, Failure::TypeMismatch);
    ASSERT_EQ(map.Board.Dirt.Count(), 3);
    EXPECT_FALSE(map.Board.Dirt.Shown(2));
    EXPECT_EQ(map.Board.Dirt.Top[2], 720);
    EXPECT_EQ(map.Board.Area(1, 1), Kind::You) << "you lines write at once";
    EXPECT_EQ(map.Board.Area(1, 2), Kind::Empty);
    EXPECT_EQ(map.Board.GemTotal, 0);
    std::string text;
    for (int i = 0; i < Pool::Limit; ++i) text += "harddirt 0 0\n";
    EXPECT_EQ(Loaded(text).Number, Failure::Overflow) << "a full pool";
}

TEST(LoadNewMap, TitlesKeywordsAndTags) {
    Loaded map("title\ntitle \ntitle x\ntitle one, two\ntitle a,dirt 0 0\n\ntitles\nYou 0 0\n"
               "Dirt 0 0\nbang 0 0\n,,\nmovingmineL 0 360 x U\nmovingmineR 0 720\n"
               "movingmineFL 0 3600 u\nfactory 0 1080 5:gem1type\ngem1type 720 0\ngem1type 720 0");
    EXPECT_EQ(map.Number, 0);
    EXPECT_EQ(map.Services.Log, "box 0 x; box 0 one; box 0 a");
    EXPECT_EQ(map.Board.Dirt.Count(), 2) << "what follows a comma is a line of its own";
    EXPECT_EQ(map.Board.MovingMineL.Picture[1], Picture::MovingMineLUpPic);
    EXPECT_EQ(map.Board.MovingMineR.Tag[1], "720") << "a mine without a tag gets its Left";
    EXPECT_EQ(map.Board.MovingMineFL.Picture[1], Picture::MovingMineFL) << "as the template";
    EXPECT_EQ(map.Board.Factory.Tag[1], "5:gem1type");
    EXPECT_EQ(map.Board.GemTotal, 3) << "the template counts";
    EXPECT_EQ(map.Board.Area(7, 14), Kind::You) << "the place of the layout, between cells";
}

TEST(LoadNewMap, StampsOwnSharedCellsInTheirOrder) {
    // Each kind shares its cell with the next one of the order, which wins.
    const std::vector<std::string> order{"gem1type",    "harddirt",     "dirt",
                                         "roundrock",   "movingmineT",  "movingmineR",
                                         "movingmineL", "movingmineFL", "movingmineP"};
    std::string text =
        "you 720 720\nmovingmineP 720 720 R\nmovingminePP 360 0 R\nfactory 360 360 1:dirt\n";
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::string here = " 0 " + std::to_string(i * 360) + "\n";
        text += (i + 1 < order.size() ? order[i + 1] + here : "") + order[i] + here;
    }
    Loaded map(text);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::string& winner = order[std::min(i + 1, order.size() - 1)];
        EXPECT_EQ(KindText(map.Board.Area(static_cast<int>(i) + 1, 1)), winner);
    }
    EXPECT_EQ(map.Board.Area(3, 3), Kind::You);
    EXPECT_EQ(map.Board.Area(1, 2), Kind::Empty) << "PP mines are not stamped";
    EXPECT_EQ(map.Board.Area(2, 2), Kind::Empty) << "nor are factories";
}

} // namespace

} // namespace tumbledeep
