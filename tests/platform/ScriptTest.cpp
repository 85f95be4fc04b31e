// Scripts: what fits, and how a fault is told.
#include "platform/headless/Script.h"

#include "shell/frmMain.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tumbledeep {

TEST(Script, FaultsNameFileAndLine) {
    std::istringstream lines(
        "hello|answer|answer maybe|answer yes please|answer file|answer  yes|at|at 0 click|"
        "at -1 click|at x click|at 1|at 1  click|at 1 jump|at 1 click twice|at 1 type|at 1 press "
        "up|"
        "at 1 press Up now|at 1 drag 5|at 1 drag 1 2 3|at 1 drag 1.5 2|at 1 menu MnuFile|"
        "at 1 resize 100x|at 1 resize -1x5|at 99999999999999999999 click|At 1 click|at 3 click");
    for (std::string line; std::getline(lines, line, '|');) {
        try {
            ReadScript("my.script", "at 4 click\n# a comment\n\n" + line + "\n", &IsMenuHandler);
            ADD_FAILURE() << line;
        } catch (const ScriptFault& fault) {
            EXPECT_TRUE(std::string(fault.what()).starts_with("my.script:4: ")) << fault.what();
        }
    }
}

TEST(Script, TextsAreTakenAsTheyStand) {
    const Script script = ReadScript("s",
                                     "answer text\r\nanswer text  two  blanks \nat 3 type  d\n"
                                     "at 3 drag -15 30\n   \nat 7 resize 100x200",
                                     &IsMenuHandler);
    ASSERT_EQ(script.Answers.size(), 2U);
    EXPECT_EQ(script.Answers[0].Text, "");
    EXPECT_EQ(script.Answers[1].Text, " two  blanks ");
    ASSERT_EQ(script.Events.size(), 3U);
    EXPECT_EQ(script.Events[0].Text, " d");
    EXPECT_EQ(script.Events[1].X, -15);
    EXPECT_EQ(script.Events[2].Step, 7);
    EXPECT_EQ(script.Events[2].Y, 200);
}

} // namespace tumbledeep
