// Scripts: which lines do not fit, and how a fault is told. Scripts that fit are played in
// headless/TraceTest.cpp.
#include "formats/Script.h"

#include "windows/frmMain.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tumbledeep {

TEST(Script, FaultsNameFileAndLine) {
    std::istringstream lines(
        "hello|answer|answer maybe|answer yes please|answer file|answer  yes|at|at 0 click|"
        "at -1 click|at x click|at 2|at 2  click|at 2 jump|at 2 click twice|at 2 type|at 2 press "
        "up|"
        "at 2 press Up now|at 2 drag 5|at 2 drag 1 2 3|at 2 drag 1.5 2|at 2 menu MnuFile|"
        "at 2 resize 100x|at 2 resize -1x5|at 99999999999999999999 click|At 1 click|at 1 click");
    for (std::string line; std::getline(lines, line, '|');) {
        try {
            ReadScript("my.script", "at 2 click\n# a comment\n\n" + line + "\n", &IsMenuHandler);
            ADD_FAILURE() << line;
        } catch (const ScriptFault& fault) {
            EXPECT_TRUE(std::string(fault.what()).starts_with("my.script:4: ")) << fault.what();
        }
    }
}

TEST(Script, ASizeBeyondAllNumbersIsWrittenAsOne) {
    const std::string line = LineOf(ScriptEvent{1, {.What = PlayerAct::Do::Resize, .X = 1e30F}, 0});
    EXPECT_GT(ReadScript("s", line, &IsMenuHandler).Events.front().Act.X, 1e18F) << line;
}

TEST(Script, AnAnswerStaysInItsLine) {
    for (const std::string text : {"Z:\\a\nat 1 click", "\r", "2\r\r"}) {
        for (const auto kind : {ScriptAnswer::To::File, ScriptAnswer::To::Text}) {
            const std::string line = LineOf(ScriptAnswer{kind, text, 0});
            const Script script = ReadScript("s", line, &IsMenuHandler);
            ASSERT_EQ(script.Answers.size(), 1U) << line;
            EXPECT_EQ(script.Answers.front().Text.size(), text.size()) << line;
            EXPECT_TRUE(script.Events.empty()) << line;
        }
    }
}

} // namespace tumbledeep
