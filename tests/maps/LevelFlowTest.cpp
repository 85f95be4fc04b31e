// What follows a win, a death and the menu's entries, in order.
#include "support/Scenario.h"

#include <array>

namespace tumbledeep {

namespace {

/// A board on which map "two.TBM" runs.
struct Running : Scenario {
    Running() : Scenario("@*") {
        Board.Form.Caption = "two.TBM";
        Game.CurrentMap = "two.TBM";
    }
    void Answer(const std::string& answers) {
        for (std::size_t start = 0; start < answers.size();) {
            const std::size_t end = std::min(answers.find('|', start), answers.size());
            Services.Answers.push_back(answers.substr(start, end - start));
            start = end + 1;
        }
    }
    std::string Log() const {
        std::string joined;
        for (const std::string& line : Services.Log) joined += (joined.empty() ? "" : "; ") + line;
        return joined;
    }
};

const std::string StartsAnew = "start .\\tumbledeep; end";

TEST(Level, WinAsksAndGoesOnThroughTheList) {
    struct Case {
        const char* What;
        const char* MapList; ///< the setting
        const char* Default; ///< text of Default.TBL
        const char* Far;     ///< text of far.TBL
        const char* Answers; ///< "|" between them
        std::string Then;
    };
    const std::string more = "box 0 There are no morelevels!; end";
    const std::string ask = "I couldn't find the next level in the current map list ";
    const std::string lost =
        "read .\\Default.TBL; box 36 " + ask + "Default.TBL Do you want to try and locate it?; ";
    const std::string locate = lost + "open .; Open; TBM maplist (*.TBL)|*.TBL; ";
    const std::string plain = "read .\\Default.TBL; ";
    const std::array<Case, 12> cases{
        {{"no", "", "two\nx", "", "no", "end"},
         {"the next one", "", "one\r\ntwo\r\nlevel three\r\n", "", "yes",
          plain + "[Level] LOAD=level three.TBM; " + StartsAnew},
         {"another list", "far", "", "two,four", "yes",
          "read .\\far.TBL; [Level] LOAD=four.TBM; " + StartsAnew},
         {"the first of two records", "", "two\none\ntwo\nthree\n", "", "yes",
          plain + "[Level] LOAD=one.TBM; " + StartsAnew},
         {"a blank line follows", "", "two\n\nthree\n", "", "yes",
          plain + "[Level] LOAD=.TBM; " + StartsAnew},
         {"the last one", "", "one\ntwo\n", "", "yes", plain + more},
         {"empty list", "", "", "", "yes", plain + more},
         {"case counts; not located", "", "Two\nx\n", "", "yes|no", lost + "end"},
         {"located nowhere", "", "x\n", "", "yes|yes|", locate + "[Level] STARTMAP=False; end"},
         {"located elsewhere, opened beside the program", "", "x\n", "two\nfive\n",
          "yes|yes|Z:\\else\\far.TBL",
          locate + "read .\\far.TBL; [Level] LOAD=five.TBM; " + StartsAnew},
         {"located in vain, twice", "", "x\n", "y\n", "yes|yes|Z:\\game\\far.TBL|no",
          locate + "read .\\far.TBL; box 36 " + ask +
              "far.TBL Do you want to try and locate it?; end"},
         {"no such list", "lost", "", "", "yes",
          "read .\\lost.TBL; box 16 The map list lost.TBL can't be opened.; end"}}};
    for (const Case& c : cases) {
        Running scene;
        scene.Services.Settings() = std::string("[Level]\nMAPLIST=") + c.MapList;
        scene.Services.Files["Z:\\game\\Default.TBL"] = c.Default;
        scene.Services.Files["Z:\\game\\far.TBL"] = c.Far;
        scene.Answer(c.Answers);
        scene.Board.Gem1Type.Visible[1] = false;
        scene.TickNumber(10);
        EXPECT_EQ(scene.Log(),
                  "box 16 You won; box 36 Do you want to play the next level?; " + c.Then)
            << c.What;
    }
}

TEST(Level, DeathTellsTheLastRecountAndTriesAgain) {
    for (const bool again : {true, false}) {
        Running scene;
        scene.Ticks(10);
        scene.Board.Gem1Type.Visible[1] = false; // taken since
        scene.Answer(again ? "yes" : "no");
        scene.Run(&frmDocument::YouDie);
        EXPECT_EQ(scene.Log(),
                  std::string("box 16 You died, with 1 gems remaining; ") +
                      "box 36 Do you want to play again?; " +
                      (again ? "[Level] LOAD=two.TBM; start .\\tumbledeep ; end" : "end"));
    }
    Running dead;
    dead.Board.YouDead = true;
    dead.TickNumber(10);
    ASSERT_TRUE(dead.Ended);
    EXPECT_EQ(dead.Services.Log.front(), "box 16 You died, with 1 gems remaining");
}

TEST(Level, RecountTakesHiddenSpritesOffTheTotalOfTheStart) {
    // Gems that a factory made as new sprites lie outside the total.
    Running scene;
    for (int i = 0; i < 2; ++i) scene.Board.SpawnObject("gem1type", 3600, 108000, "D");
    ASSERT_EQ(scene.Board.Gem1Type.Count(), 3);
    scene.TickNumber(10);
    EXPECT_EQ(scene.Board.GemsLeft, 2);
    scene.Board.Gem1Type.Visible.assign(3, 0);
    scene.TickNumber(10);
    EXPECT_EQ(scene.Board.GemsLeft, -1);
    EXPECT_FALSE(scene.Ended) << "passed 0 between two recounts";
    scene.Board.Gem1Type.Visible[2] = true;
    scene.TickNumber(10);
    EXPECT_TRUE(scene.Ended) << "won with a gem on the board";
}

TEST(Menu, EntriesWriteTheirSettingsAndStartAnew) {
    struct Case {
        const char* Entry;
        const char* Answers;
        std::string Log;
    };
    const std::string openMap = "open .; Open; Tumbledeep map (*.TBM)|*.TBM";
    const std::string openList = "open .; Open; Tumbledeep maplist (*.TBL)|*.TBL";
    const std::string sure = "box 52 Are you sure you want to restart the map?";
    const std::string startsMap = "; [Level] STARTMAP=True; " + StartsAnew;
    const std::array<Case, 12> cases{
        {{"MnuLoadMap", "", openMap},
         {"MnuLoadMap", "Z:\\else\\far.TBM", openMap + "; [Level] LOAD=far.TBM" + startsMap},
         {"MnuMapList", "", openList},
         {"MnuMapList", "Z:\\else\\my.TBL", openList + "; [Level] MAPLIST=my"},
         {"MnuRestart", "no", sure},
         {"MnuRestart", "yes", sure + "; [Level] LOAD=two.TBM" + startsMap},
         {"MnuBeginagain", "", "read .\\Default.TBL; [Level] LOAD=level one" + startsMap},
         {"MnuStartLastMap", "", "[Level] STARTMAP=True"},
         {"MnuOff", "", "[AutoMove] MOVE=False; [AutoMove] MODE=2"},
         {"MnuMode1", "", "[AutoMove] MOVE=True; [AutoMove] MODE=1"},
         {"MnuMode2", "", "[AutoMove] MOVE=True; [AutoMove] MODE=2"},
         {"MnuMode3", "", "[AutoMove] MOVE=True; [AutoMove] MODE=3"}}};
    for (const Case& c : cases) {
        Running scene;
        scene.Services.Files["Z:\\game\\Default.TBL"] = "level one\nlevel two\n";
        scene.Answer(c.Answers);
        try {
            EXPECT_TRUE(scene.Game.MenuClick(c.Entry));
        } catch (const ProgramEnd&) {
            scene.Ended = true;
        }
        EXPECT_EQ(scene.Log(), c.Log) << c.Entry;
        EXPECT_EQ(scene.Ended, c.Log.ends_with("end"));
    }
}

TEST(Menu, CheckMarkTurnsOverAndSubmenusDoNothing) {
    Running scene;
    scene.Game.MenuClick("MnuStartLastMap");
    EXPECT_TRUE(scene.Game.Entry("MnuStartLastMap").Checked);
    scene.Game.MenuClick("MnuStartLastMap");
    EXPECT_FALSE(scene.Game.Entry("MnuStartLastMap").Checked);
    EXPECT_EQ(scene.Log(), "[Level] STARTMAP=True; [Level] STARTMAP=False");
    for (const char* name : {"MnuFile", "MnuSettings", "MnuAutoMove", "Mnu", "mnuoff"}) {
        EXPECT_FALSE(scene.Game.MenuClick(name)) << name;
    }
}

TEST(Menu, ListsThatCannotStartAnewEndTheProgram) {
    for (const bool there : {true, false}) {
        Running scene;
        scene.Services.Settings() = "[Level]\nMAPLIST=mine\n";
        if (there) scene.Services.Files["Z:\\game\\mine.TBL"] = "\xEF\xBB\xBF";
        EXPECT_THROW(scene.Game.MenuClick("MnuBeginagain"), ProgramEnd);
        EXPECT_EQ(scene.Log(), std::string("read .\\mine.TBL; box 16 The map list mine.TBL ") +
                                   (there ? "is empty.; end" : "can't be opened.; end"));
    }
}

} // namespace

} // namespace tumbledeep
