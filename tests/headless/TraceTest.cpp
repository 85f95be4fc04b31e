// Whole runs without a window, as the trace prints them.
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>

namespace tumbledeep {

namespace {

/// A folder with a map that the settings name, and what the program says there.
struct Session {
    Session() {
        Folder.Write("m.TBM", "title a\"b\\c\td\nyou 0 0\ndirt 0 360\n");
        Folder.Write("Tumbledeep.ini", "[Level]\nLOAD=m.TBM\n[AutoMove]\nMOVE=False\nMODE=2\n");
        Folder.Write("good", "at 2 type d\n");
        Folder.Write("yes", "answer yes\n");
        Folder.Write("bad", "at 1 type d\nat 1 leap\n");
    }
    int Call(const std::string& words) {
        const std::string call = "cd " + Folder.Path.string() +
                                 " && { " TUMBLEDEEP_TRACE " --dir . " + words + "; } > said 2>&1";
        const int status = std::system(call.c_str());
        Said = Folder.Read("said");
        return WEXITSTATUS(status);
    }
    TempFolder Folder;
    std::string Said;
};

TEST(Play, PrintsAllOnceAndThenWhatChanges) {
    Session run;
    EXPECT_EQ(run.Call("--steps 12 --script good | grep -v -e -100000"), 0); // without the hidden
    EXPECT_EQ(run.Said, R"lines(ini "Level" "LOAD" "m.TBM"
ini "Level" "LOAD" "m.TBM"
box 0 "a\"b\\c\x09d" = 1
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

TEST(Play, ScriptsDoAllThatAPlayerCan) {
    Session run;
    run.Folder.Write("list.TBL", "m\n");
    run.Folder.Write("m.TBM", "you 0 0\nharddirt 0 0\ngem1type 107640 0\n");
    run.Folder.Write("all", "# answers\nanswer file list.TBL\nanswer no\n\n"
                            "at 1 type s\nat 2 press Right\nat 7 release Right\n"
                            "at 8 press Down\nat 13 release Down\nat 14 click\nat 15 click\n"
                            "at 16 drag 15 -30\nat 17 lostfocus\nat 18 gotfocus\n"
                            "at 19 menu MnuMapList\nat 20 resize 9000x8000\nat 20 menu MnuMode2\n"
                            "at 21 menu MnuRestart\n");
    EXPECT_EQ(run.Call("--steps 21 --script all | sed -n '/^step 1 /,$p' | grep -v '^sprite'"), 0);
    EXPECT_EQ(run.Said, R"lines(step 1 tick 1
var YouRow 2
cell 1 1 ""
cell 1 2 "you"
step 6 tick 6
var YouCol 2
cell 1 2 ""
cell 2 2 "you"
step 10 tick 10
var GemsLeft 1
step 12 tick 12
var YouRow 3
cell 2 2 ""
cell 2 3 "you"
step 14 tick 13
var Enabled 0
step 15 tick 14
var Enabled 1
step 16 tick 15
view 7508 4822 375 375
step 17 tick 15
var Enabled 0
step 18 tick 16
var Enabled 1
open "Open" "." "Tumbledeep maplist (*.TBL)|*.TBL" = ".\\list.TBL"
ini "Level" "MAPLIST" "list"
ini "AutoMove" "MOVE" "True"
ini "AutoMove" "MODE" "2"
step 20 tick 18
var AutoMoveOn 1
view 7135 4632 375 375
box 52 "Are you sure you want to restart the map?" = 7
step 21 tick 19
view 6799 4461 375 375
stop 21 tick 19
)lines");
}

TEST(TraceProgram, CallsEndWithTheirStatus) {
    Session run;
    using Case = std::tuple<const char*, int, const char*>;
    for (const auto& [words, status, says] :
         {Case{"--steps 3 --quiet", 0, "stop 3 tick 3\n"},
          Case{"--steps 2 --script good", 0, "var YouCol 2\n"},
          Case{"--steps 2 --script - < good", 0, "var YouCol 2\n"},
          Case{"--seed 4294967295 --parent 900x900 m.TBM", 0, "\nend\n"},
          Case{"--version", 0, "tumbledeep-trace 1."},
          Case{"--script yes gone.TBM", 2,
               "yes:1: the answer does not fit an open dialog, which "
               "asks because there is no \"gone.TBM\"\n"},
          Case{"--script bad", 2, "bad:2: "}, Case{"--script none", 2, "none: "},
          Case{"--dir none", 2, "none: "}, Case{"--steps -1", 2, "--steps"},
          Case{"--seed", 2, "--seed"}, Case{"--seed 4294967296", 2, "--seed"},
          Case{"--parent 5", 2, "--parent"}, Case{"--fast", 2, "--fast"},
          Case{"a.TBM b.TBM", 2, "b.TBM"}}) {
        EXPECT_EQ(run.Call(words), status) << words;
        EXPECT_THAT(run.Said, testing::HasSubstr(says)) << words;
    }
}

} // namespace

} // namespace tumbledeep
