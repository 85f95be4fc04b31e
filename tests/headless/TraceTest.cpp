// Whole runs of tumbledeep-trace as a program: what it prints, and how a wrong call ends. The
// folder every_verb holds a map, a script and the lines that must come of them.
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>

namespace tumbledeep {

namespace {

namespace fs = std::filesystem;

/// The folder every_verb with its map, its script and the lines that are expected, and what the
/// program says there.
struct Played {
    Played() { fs::copy(TUMBLEDEEP_EVERY_VERB, Folder.Path); }
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

TEST(Trace, PrintsAllOnceAndThenWhatChanges) {
    Played run;
    EXPECT_EQ(run.Call("--steps 40 --script hands.txt"), 0);
    EXPECT_EQ(run.Said, run.Folder.Read("expected.txt"));
}

TEST(Trace, CallsEndWithTheirStatus) {
    Played run;
    run.Folder.Write("yes", "answer yes\n");
    run.Folder.Write("bad", "at 1 type d\nat 1 leap\n");
    using Case = std::tuple<const char*, int, const char*>;
    for (const auto& [words, status, says] :
         {Case{"--steps 3 --quiet", 0, "\"2\"\nstop 3 tick 3\n"},
          Case{"--steps 3 --timing m.TBM", 0, " over 3 of 3\n"},
          Case{"--steps 2 --script - < hands.txt", 0, "var YouRow 2\n"},
          Case{"--seed 4294967295 --parent 900x900 m.TBM", 0, "view 180 180 735 735\n"},
          Case{"--version", 0, "tumbledeep-trace 1."},
          Case{"--script yes gone.TBM", 2,
               "yes:1: the answer does not fit an open dialog, which asks because there is no "
               "\"gone.TBM\"\n"},
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
