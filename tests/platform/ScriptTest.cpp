// Scripts: what fits, and how a fault is told.
#include "platform/headless/Script.h"

#include "shell/frmMain.h"

#include <gtest/gtest.h>

namespace tumbledeep {

namespace {

std::string FaultOf(const std::string& text) {
    try {
        ReadScript("my.script", text, &IsMenuHandler);
        return "";
    } catch (const ScriptFault& fault) {
        return fault.what();
    }
}

TEST(Script, FaultsNameFileAndLine) {
    for (const char* line : {"hello",
                             "answer",
                             "answer maybe",
                             "answer yes please",
                             "answer file",
                             "answer  yes",
                             "at",
                             "at 0 click",
                             "at -1 click",
                             "at x click",
                             "at 1",
                             "at 1  click",
                             "at 1 jump",
                             "at 1 click twice",
                             "at 1 type",
                             "at 1 press",
                             "at 1 press up",
                             "at 1 press Up now",
                             "at 1 drag 5",
                             "at 1 drag 1 2 3",
                             "at 1 drag 1.5 2",
                             "at 1 menu",
                             "at 1 menu MnuFile",
                             "at 1 menu Mnu",
                             "at 1 resize 100",
                             "at 1 resize 100x",
                             "at 1 resize -1x5",
                             "at 99999999999999999999 click",
                             "At 1 click",
                             " at 1 click",
                             "at 4 click\nat 3 click"}) {
        const bool second = std::string_view(line).find('\n') != std::string_view::npos;
        const std::string fault = FaultOf(std::string("# a comment\n\n") + line + "\n");
        EXPECT_TRUE(fault.starts_with(second ? "my.script:4: " : "my.script:3: ")) << line << fault;
        EXPECT_EQ(fault.find('\n'), std::string::npos);
    }
}

TEST(Script, TextsAreTakenAsTheyStand) {
    const Script script = ReadScript("s",
                                     "answer text\r\nanswer text  two  blanks \nanswer file a b.TBM"
                                     "\nat 3 type  d\nat 3 drag -15 30\n   \nat 7 resize 100x200",
                                     &IsMenuHandler);
    ASSERT_EQ(script.Answers.size(), 3U);
    EXPECT_EQ(script.Answers[0].Text, "");
    EXPECT_EQ(script.Answers[1].Text, " two  blanks ");
    EXPECT_EQ(script.Answers[2].Text, "a b.TBM");
    ASSERT_EQ(script.Events.size(), 3U);
    EXPECT_EQ(script.Events[0].Text, " d");
    EXPECT_EQ(script.Events[1].X, -15);
    EXPECT_EQ(script.Events[2].Step, 7);
    EXPECT_EQ(script.Events[2].Y, 200);
}

} // namespace

} // namespace tumbledeep
