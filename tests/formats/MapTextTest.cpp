// The lines of a map: what is malformed, how numbers may look, and what stays on the board after a
// fault. What the player is told then is in windows/StartupLoadTest.cpp.
#include "formats/LoadMap.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tumbledeep {

namespace {

MapLine Read(const std::string& text) { return ReadMapLine(FieldInput(text).Next()); }

TEST(MapText, FaultsTellTheirNumberAndTheirPlace) {
    std::istringstream lines(
        "dirt|dirt |dirt 0 0 |dirt  0 0|dirt x 0|dirt 0 x|dirt nan 0|dirt inf 0|"
        "dirt 0x10 0|dirt . 0|dirt e5 0|dirt 1e+ 0|dirt - 0|dirt --1 0|"
        "dirt 1.2.3 0|dirt 0 360 x|\"dirt 1,5 0\"|dirt 0\t0|movingmineL 0|"
        "movingmineL 0 R|movingmineL 0  360 R|factory x 0 1:dirt|gem1type 0 R|"
        "you|you x 0|you 0 x");
    for (std::string line; std::getline(lines, line, '|');) {
        const auto fault = Read(line).Fault;
        ASSERT_TRUE(fault) << line;
        EXPECT_EQ(fault->Number, 13) << line;
    }
    for (const char* line : {"dirt 1e39 0", "dirt 0 -1e39", "dirt 3.5e38 0", "you 1e99999999999 0",
                             "movingmineT 1000000000000000000000000000000000000000 0"}) {
        EXPECT_EQ(Read(line).Fault.value().Number, 6) << line;
    }
    FieldInput input("dirt 0 0\n, movingmineL 0 36o U");
    input.Next();
    input.Next();
    const MapLine line = ReadMapLine(input.Next());
    EXPECT_EQ(line.Line, 2);
    EXPECT_EQ(line.Fault.value().Word, "36o");
    EXPECT_EQ(line.Fault.value().Column, 17);
    EXPECT_TRUE(line.Top && !line.Left);
}

TEST(MapText, NumbersInAllForms) {
    using Case = std::tuple<const char*, float, float>;
    for (const auto& [text, top, left] :
         {Case{"dirt 5. .5", 5, 0.5F}, Case{"dirt +360 -720", 360, -720},
          Case{"dirt 1E2 1e-60", 100, 0}, Case{"dirt 1e30 3.4e38", 1e30F, 3.4e38F},
          Case{"dirt 00012 1.5e+2", 12, 150}, Case{"dirt 0e99999 0", 0, 0},
          Case{"dirt 360", 360, 360}, // the last word is the second one
          Case{"dirt 0 999 360", 0, 360}, Case{"  dirt 0 360", 0, 360}}) {
        const MapLine line = Read(text);
        EXPECT_EQ(line.Top, top) << text;
        EXPECT_EQ(line.Left, left) << text;
    }
}

TEST(LoadMap, FailureLeavesWhatWasMade) {
    Board board;
    std::istringstream lines("you 0 0\ngem1type 0 360\ndirt 360 0\nyou 720 x\ndirt 720 x\n");
    int failures = 0;
    for (std::string line; std::getline(lines, line);) {
        try {
            PutOnBoard(board, Read(line));
        } catch (const Failure&) {
            ++failures;
        }
    }
    const Pool& dirt = board.Pools[Kind::Dirt];
    EXPECT_EQ(failures, 2);
    ASSERT_EQ(dirt.Count(), 3);
    EXPECT_FALSE(dirt[2].Visible);
    EXPECT_EQ(dirt[2].Top, 720);
    EXPECT_EQ(dirt[2].Left, 3240) << "the template's";
    EXPECT_EQ(board.You.Top, 720);
    EXPECT_EQ(board.Area(1, 1), Kind::You) << "you lines write at once";
    EXPECT_EQ(board.Area(1, 2), Kind::Empty);
    std::string text;
    for (int i = 0; i < Pool::Limit; ++i) text += "harddirt 0 0\n";
    EXPECT_THROW(LoadMap(text, 0), Failure) << "a full pool";
}

TEST(LoadMap, KeywordsAndTags) {
    const Board board = LoadMap(
        "title a,dirt 0 0\n\ntitles\nYou 0 0\nDirt 0 0\nbang 0 0\n,,\nmovingmineL 0 360 x U\n"
        "movingmineR 0 720\nmovingmineFL 0 3600 u\nmovingmineP 0 0 \nfactory 0 1080 5:gem1type\n",
        0);
    EXPECT_EQ(board.Pools[Kind::Dirt].Count(), 2) << "what follows a comma is a line of its own";
    EXPECT_EQ(board.Pools[Kind::Bang].Count(), 1);
    EXPECT_EQ(board.Pools[Kind::MovingMineL].TagText(1), "U") << "the last word";
    EXPECT_EQ(board.Pools[Kind::MovingMineR].TagText(1), "720") << "its Left for want of a tag";
    EXPECT_EQ(board.Pools[Kind::MovingMineFL].TagText(1), "u");
    EXPECT_EQ(board.Pools[Kind::MovingMineP].TagText(1), "");
    EXPECT_EQ(board.Pools[Kind::Factory].TagText(1), "5:gem1type");
}

} // namespace

} // namespace tumbledeep
