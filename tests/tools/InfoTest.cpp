// A map's figures, and what is said of a map that can't be loaded.
#include "map/info/MapInfo.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

using testing::HasSubstr;

MapInfo Study(const std::string& map) {
    const TempFolder folder;
    folder.Write("m.TBM", map);
    return StudyMap((folder.Path / "m.TBM").string());
}

TEST(Info, CountsMeasuresAndPlaysAMinute) {
    const MapInfo info =
        Study("title \xE4\nharddirt 0 0\ndirt 720 3601\nfactory 360 720 4:roundrock\n"
              "factory 0 0 4:you\nyou 0 0\nyou 360 360\ngem1type 0 99999\n");
    EXPECT_EQ(info.Columns, 12);
    EXPECT_EQ(info.Rows, 3);
    EXPECT_EQ(info.CountOf(Kind::You), 2);
    EXPECT_EQ(info.Ticks, MinuteTicks);
    const std::string json = JsonOf(info);
    EXPECT_THAT(json, HasSubstr(R"("row": 2,
      "recipe": "4:roundrock",
      "makes": "roundrock",
      "every_ms": 500)"));
    EXPECT_THAT(json, HasSubstr(R"("makes": null)"));

    EXPECT_EQ(Study("you 0 0\n").End, Outcome::Won);
    const MapInfo death = Study("you 1080 0\nroundrock 0 0\ngem1type 0 9999\nharddirt 1440 0\n");
    EXPECT_EQ(death.End, Outcome::Died);
    EXPECT_LT(death.Ticks, MinuteTicks);
}

TEST(Info, TellsTheLineThatStopsTheLoad) {
    for (const auto& [line, told] :
         {std::pair{"dirt 36o 0", ":2: \"36o\" is no number (failure 13)"},
          {"dirt 0 1e99", ":2: \"1e99\" is too large"}}) {
        try {
            Study(std::string("you 0 0\n") + line);
            ADD_FAILURE() << line;
        } catch (const std::runtime_error& fault) {
            EXPECT_THAT(fault.what(), HasSubstr(told));
        }
    }
}

} // namespace

} // namespace tumbledeep
