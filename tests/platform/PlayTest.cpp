// Whole runs without a window, as the trace prints them.
#include "platform/headless/Play.h"

#include "platform/HostFiles.h"
#include "shell/frmMain.h"
#include "soak/RandomMap.h"
#include "support/FakePlatform.h"
#include "support/TempFolder.h"

#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

namespace tumbledeep {

namespace {

const std::string Head = "ini \"Level\" \"LOAD\" \"m.TBM\"\nini \"Level\" \"LOAD\" \"m.TBM\"\n";

/// A folder with a map that the settings name, and what a run in it prints.
struct Session {
    explicit Session(const std::string& map) {
        Folder.Write("m.TBM", map);
        Folder.Write("Tumbledeep.ini", "[Level]\nLOAD=m.TBM\n[AutoMove]\nMOVE=False\nMODE=2\n");
        Options.Run.Directory = ProgramPath(Folder.Path);
    }
    std::string Lines(const std::string& script, std::int64_t steps, bool quiet = false) {
        Options.Steps = steps;
        Options.Quiet = quiet;
        std::ostringstream lines;
        try {
            Play(Options, ReadScript("s", script, &IsMenuHandler), lines);
        } catch (const ScriptFault& fault) {
            lines << "fault " << fault.what() << '\n';
        }
        return lines.str();
    }
    TempFolder Folder;
    PlayOptions Options;
};

TEST(Play, PrintsAllOnceAndThenWhatChanges) {
    Session run("title a\"b\\c\td\nyou 0 0\ndirt 0 360\n");
    EXPECT_EQ(run.Lines("at 2 type d\n", 12), Head + R"lines(box 0 "a\"b\\c\x09d" = 1
step 0 tick 0
var Enabled 1
var MoveReady 1
var YouDead 0
var GemsLeft 0
var GemTotal 1
var YouCol 1
var YouRow 1
var AutoMoveOn 0
var AutoMoveMode 2
var Status "Gems Remaining:"
var Caption "Tumble Deep"
var BoardCaption "m.TBM"
cell 1 1 "you"
cell 2 1 "dirt"
sprite HardDirt 0 2760 4560 0 "" ""
sprite Dirt 0 3240 4560 0 "" ""
sprite Dirt 1 360 0 1 "" ""
sprite Gem1Type 0 -100000 -100000 0 "" "GemTypePic(0)"
sprite RoundRock 0 -100000 -100000 0 "" "RoundRockPic(0)"
sprite MovingMineT 0 -100000 -100000 0 "" "MovingMineT"
sprite MovingMineL 0 -100000 -100000 0 "" "MovingMineL"
sprite MovingMineR 0 -100000 -100000 0 "" "MovingMineR"
sprite MovingMineFL 0 -100000 -100000 0 "" "MovingMineFL"
sprite MovingMineP 0 -100000 -100000 0 "" "MovingMineP"
sprite MovingMinePP 0 -100000 -100000 0 "" "MovingMinePP"
sprite Factory 0 -100000 -100000 0 "" "Factory"
sprite Bang 0 -100000 -100000 0 "" "Bang"
sprite You 0 0 0 1 "" ""
view 7312 4852 735 375
step 2 tick 2
var YouCol 2
cell 1 1 ""
cell 2 1 "you"
sprite Dirt 1 360 0 0 "" ""
sprite You 0 360 0 1 "" ""
box 16 "You won" = 1
box 36 "Do you want to play the next level?" = 7
end
stop 10 tick 10
)lines");
}

TEST(Play, EventsComeInTheScriptsOrderBeforeTheTick) {
    Session run("you 0 0\ngem1type 3600 3600\nharddirt 3960 3600\n");
    EXPECT_EQ(run.Lines("at 1 type d\n", 12, true), Head + "stop 12 tick 12\n");
    const std::string lines =
        run.Lines("at 1 press Right\nat 3 lostfocus\nat 5 gotfocus\nat 5 type p\nat 5 type p\n"
                  "at 6 drag 15 -30\nat 9 release Right\nat 9 menu MnuStartLastMap\n"
                  "at 10 resize 1000x1000\n",
                  16);
    EXPECT_EQ(lines.substr(lines.find("step 3 ")),
              "step 3 tick 2\nvar Enabled 0\n"
              "step 5 tick 3\nvar Enabled 1\n"
              "step 6 tick 4\nview 5708 2842 3975 4335\n"
              "step 8 tick 6\nvar YouCol 2\ncell 1 1 \"\"\ncell 2 1 \"you\"\n"
              "sprite You 0 360 0 1 \"\" \"\"\n"
              "ini \"Level\" \"STARTMAP\" \"False\"\n"
              "step 12 tick 10\nvar GemsLeft 1\n"
              "stop 16 tick 14\n");
}

TEST(Play, AnswersAreUsedInOrderAndHaveToFit) {
    const std::string asked =
        "box 16 \"You won\" = 1\nbox 36 \"Do you want to play the next level?\" = 6\n";
    Session run("you 0 0\n");
    run.Folder.Write("Default.TBL", "x\n");
    run.Folder.Write("Far.TBL", "m\nnew\n");
    const std::string lost = asked + "box 36 \"I couldn't find the next level in the current map "
                                     "list Default.TBL Do you want to try and locate it?\" = 6\n"
                                     "open \"Open\" \".\" \"TBM maplist (*.TBL)|*.TBL\" = ";
    EXPECT_EQ(run.Lines("answer yes\nanswer yes\nanswer file sub/far.tbl\nanswer no\n", 20, true),
              Head + lost +
                  "\".\\\\sub\\\\far.tbl\"\nini \"Level\" \"LOAD\" \"new.TBM\"\n"
                  "start \".\\\\tumbledeep\"\nend\nstop 10 tick 10\n");
    EXPECT_EQ(run.Lines("answer yes\n# ask\nanswer text yes\n", 20, true),
              "ini \"Level\" \"LOAD\" \"new.TBM\"\nini \"Level\" \"LOAD\" \"new.TBM\"\n"
              "fault s:1: the answer does not fit an open dialog\n");
}

TEST(Play, TwoGamesInOneProcessDoNotDisturbEachOther) {
    struct Game {
        explicit Game(std::uint32_t seed) {
            Services.Settings() = "[AutoMove]\nMOVE=True\nMODE=2\n";
            Services.FurtherDraws = [this] { return Draws.Next(); };
            Draws.Seed(seed);
            Main.MapFile = FieldInput("gem1type 108000 108000\n" + RandomMap(seed));
            Main.LoadNewMap();
        }
        void Tick() {
            try {
                Main.ActiveChild.Interval100Timer_Timer();
            } catch (const ProgramEnd&) {
                Services.Log.emplace_back("tick " + std::to_string(Main.ActiveChild.TickCount));
            }
        }
        Random Draws;
        FakePlatform Services;
        frmMain Main{Services};
    };
    Game alone(5);
    for (int i = 0; i < 400; ++i) alone.Tick();
    Game first(5);
    Game second(6);
    for (int i = 0; i < 400; ++i) {
        first.Tick();
        second.Tick();
    }
    EXPECT_EQ(first.Main.ActiveChild.Area.Cells(), alone.Main.ActiveChild.Area.Cells());
    EXPECT_EQ(first.Main.ActiveChild.Form.Top, alone.Main.ActiveChild.Form.Top);
    EXPECT_EQ(first.Services.Log, alone.Services.Log);
    EXPECT_NE(first.Main.ActiveChild.Area.Cells(), second.Main.ActiveChild.Area.Cells());
}

TEST(TraceProgram, CallsEndWithTheirStatus) {
    struct Case {
        const char* Words; ///< %D is the folder
        int Status;
        const char* Says; ///< on either output
    };
    Session run("you 0 0\n");
    run.Folder.Write("good", "at 1 type d\n");
    run.Folder.Write("bad", "at 1 type d\nat 1 leap\n");
    for (const Case& c :
         {Case{"--dir %D --steps 3 --quiet", 0, "stop 3 tick 3\n"},
          Case{"--dir %D --steps 1 --script %D/good", 0, "var YouCol 2\n"},
          Case{"--dir %D --steps 1 --script - < %D/good", 0, "var YouCol 2\n"},
          Case{"--dir %D --seed 4294967295 --parent 900x900 m.TBM", 0, "\nend\n"},
          Case{"--dir %D --script %D/bad", 2, "/bad:2: "},
          Case{"--dir %D --script %D/none", 2, "/none: "}, Case{"--dir %D/none", 2, "/none: "},
          Case{"--steps -1", 2, "--steps"}, Case{"--seed 4294967296", 2, "--seed"},
          Case{"--seed", 2, "--seed"}, Case{"--parent 5", 2, "--parent"},
          Case{"--fast", 2, "--fast"}, Case{"a.TBM b.TBM", 2, "b.TBM"}}) {
        std::string words = c.Words;
        for (std::size_t at = 0; (at = words.find("%D")) != std::string::npos;) {
            words.replace(at, 2, run.Folder.Path.string());
        }
        words.insert(0, std::string(TUMBLEDEEP_TRACE) + " ");
        words += " > " + (run.Folder.Path / "said").string() + " 2>&1";
        const int status = std::system(words.c_str());
        EXPECT_EQ(WEXITSTATUS(status), c.Status) << c.Words;
        EXPECT_NE(run.Folder.Read("said").find(c.Says), std::string::npos)
            << c.Words << "\n"
            << run.Folder.Read("said");
    }
}

} // namespace

} // namespace tumbledeep
