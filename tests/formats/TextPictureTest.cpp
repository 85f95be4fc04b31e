// Text pictures: what is in a map must be there again after a picture has been made of it, what a
// heading can say, and what it is told that it can't.
#include "formats/TextPicture.h"

#include "formats/MapText.h"
#include "soak/RandomGame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

/// All that counts for play, and what is told beside it, in turn.
std::string Sense(const std::vector<Record>& map) {
    std::array<std::string, KindCount> kinds;
    std::string talk;
    for (const Record& record : map) {
        const MapLine line = ReadMapLine(record);
        std::string& kind = kinds[static_cast<std::size_t>(line.Which)];
        if (line.What != MapLine::Is::Object) {
            talk += record.Text.empty() ? "" : record.Text + "\n";
            continue;
        }
        if (line.Which == Kind::You) kind.clear(); // the last one counts
        kind += ObjectLine(line.Which, line.Top.value(), line.Left.value(), line.Text) + "\n";
    }
    for (const std::string& kind : kinds) talk += kind;
    return talk;
}

std::string ThereAndBack(const std::string& map) {
    const std::string picture = WritePicture("m", ReadRecords(map));
    // The file written must be read as these records, too.
    return Sense(ReadRecords(WriteRecords(ReadPicture("p", picture).Map)));
}

TEST(TextPicture, NothingThatMattersIsLostThereAndBack) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        std::vector<Record> map = ReadRecords(RandomMap(seed));
        Dice dice(seed);
        // A few lines in other places, twice, or all of them in any order.
        const int moves = dice.Once(5) ? static_cast<int>(map.size()) : dice.Below(6);
        const auto any = [&]() -> Record& {
            return map[static_cast<std::size_t>(dice.Below(static_cast<int>(map.size())))];
        };
        for (int i = 0; i < moves; ++i) std::swap(any(), any());
        if (dice.Once(2)) any() = any();
        EXPECT_EQ(ThereAndBack(WriteRecords(map)), Sense(map)) << seed;
    }
    for (const std::string odd :
         {"\"title Down, down\nand \\ up\"\nrem a,= b\n+ c\nboard\n\"  title\"\ntitle \ndirt 0 "
          "0\n",
          "you 0 0\nyou 0 360\ngem1type -0 0\ngem1type 360 -360\ndirt 108000 0\ndirt 1e30 0.5\n",
          "movingmineL 0 0\nmovingmineL 0 360 x\n\"factory 0 0 1,a\"\nfactory 0 360 \n",
          " \xEF\xBB\xBF"
          "dirt 0 0\n",
          "dirt 0 0\ndirt 0 360\ndirt 0 0\n", ""}) {
        EXPECT_EQ(ThereAndBack(odd), Sense(ReadRecords(odd)));
    }
    EXPECT_EQ(ThereAndBack("\"title a\r\nb\"\n"), "title a\nb\n");
    EXPECT_EQ(WritePicture("m", ReadRecords("roundrock 0 0\nroundrock 360 0\n")),
              "order roundrock down\n\nboard\nO\nO\n");
    EXPECT_EQ(WritePicture("m", ReadRecords("dirt 360 0\ndirt 1 0\ndirt 0 0\n"), Turns::LeftOut),
              "+ dirt 1 0\n\nboard\n.\n.\n");
    std::string tags; // more of them than there are marks
    for (int i = 0; i < 200; ++i)
        tags +=
            ObjectLine(Kind::Factory, 0, 360.0F * static_cast<float>(i), std::to_string(i)) + "\n";
    EXPECT_EQ(ThereAndBack(tags), Sense(ReadRecords(tags)));
}

TEST(TextPicture, TheHeadingGivesMarksTurnsAndLines) {
    const std::string map =
        WriteRecords(ReadPicture("p", "\xEF\xBB\xBFtitle Mind, the\r\n| gap\r\n\r\n"
                                      "# = dirt\n"
                                      "g = factory 5:gem1type,gem1type\n"
                                      "order dirt up\n"
                                      "+1 roundrock 0 720\n"
                                      "+ rem end\n"
                                      "+ roundrock 370 0\n"
                                      "2 = movingmineT, movingmineT\n"
                                      "+ movingmineT 720 1440\n"
                                      "board\n"
                                      "#@OO  \n"
                                      "   O\n"
                                      "#L g2\n\n")
                         .Map);
    EXPECT_EQ(map, "\"title Mind, the\ngap\"\nrem end\nyou 0 360\ndirt 720 0\ndirt 0 0\n"
                   "gem1type 720 1080\nroundrock 0 720\nroundrock 360 1080\nroundrock 0 "
                   "1080\nroundrock 370 0\n"
                   "movingmineT 720 1440\nmovingmineT 720 1440\n"
                   "movingmineL 720 360 D\nfactory 720 1080 5:gem1type\n");
    const auto lines = ReadPicture("p", "board\n\n @").Map;
    EXPECT_EQ(lines.at(0).Line, 3);
    EXPECT_EQ(lines.at(0).Column, 2);
}

TEST(TextPicture, FaultsNameTheirLine) {
    using Case = std::pair<std::string, const char*>;
    for (const auto& [text, fault] :
         {Case{"title x\n", "p:1: a picture has a line \"board\""},
          {"titel x\nboard", "p:1: did you mean \"title\""},
          {"some prose\nboard", "p:1: a heading has lines"},
          {" title x\nboard", "p:1: a line of the heading begins without"},
          {"####\nboard", "p:1: this looks like a row"},
          {"x=dirt\nboard", "p:1: a mark is one character"},
          {"dirt 0 0\n", "p:1: a line of a map has"},
          {"+ dirt  0\nboard", "p:1: a number is missing"},
          {"board\no", "p:2: column 1: a rock is"},
          {"\nx = dirt\nx = gem1type\nboard", "p:3: the mark x has a meaning already"},
          {"x = rock\nboard",
           "p:1: no object of a map is called \"rock\"; did you mean \"roundrock\""},
          {"x = movingmineL\nboard", "p:1: movingmineL needs one heading"},
          {"x = factory 5:dirt 6\nboard", "p:1: factory needs one recipe"},
          {"x = dirt U\nboard", "p:1: nothing can stand behind dirt"},
          {"x = dirt,\nboard", "p:1: no object"},
          {"order rock up\nboard", "p:1: an order reads"},
          {"order dirt left\nboard", "p:1: an order reads"},
          {"+0 dirt 0 0\nboard", "p:1: + is followed by a number from 1 to 32766"},
          {"+2 dirt 0 0\nboard", "p:1: the number 2 is given twice, or"},
          {"+1 dirt 0 0\n+1 dirt 0 0\nboard", "p:2: the number 1 is given twice, or"},
          {"+1 rem\nboard", "p:1: only objects are numbered"},
          {"+ dirt x 0\nboard", "p:1: \"x\" is no number"},
          {"+ \"a\nboard", "p:1: a map's line can't"},
          {"title \"a\", b\nboard", "p:1: a map's line can't hold both a quote and a comma"},
          {"board\n @\n  L\n@", "p:4: a second player; the first one stands in line 2"},
          {"board\n#\t", "p:2: column 2: cells are blanks or"},
          {"board\n\xC3\xA4", "p:2: column 1: cells are blanks or"},
          {"board\n?", "p:2: column 1: ? has no meaning"},
          {"board\n" + std::string(301, '#'), "p:2: a map has 300 columns at most"},
          {"board\n" + std::string(300, '\n') + "#", "p:302: a map has 300 rows at most"}}) {
        try {
            ReadPicture("p", text);
            ADD_FAILURE() << fault;
        } catch (const PictureFault& thrown) {
            EXPECT_EQ(std::string(thrown.what()).find(fault), 0U) << thrown.what();
        }
    }
    EXPECT_THROW(WritePicture("m", ReadRecords("dirt 0 0\ndirt x 0")), PictureFault);
}

} // namespace

} // namespace tumbledeep
