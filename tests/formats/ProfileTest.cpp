// Settings text: which line a key is, and that a player's other lines are never lost. The file
// round the text is in host/HostFilesTest.cpp.
#include "formats/Profile.h"

#include <gtest/gtest.h>

namespace tumbledeep {

TEST(Profile, ValuesAreFoundWithoutRegardToCase) {
    const std::string text = "\xEF\xBB\xBF[other]\nload=0\n; [Level]\n\n[ LEVEL ]\r\n;load=1\n"
                             "nonsense\n  LoAd  = two words =x \r\nLOAD=3\n[Level]\nMODE=4";
    EXPECT_EQ(ProfileValue(text, "Level", "load"), " two words =x ") << "as it stands";
    EXPECT_EQ(ProfileValue(text, "other", "LOAD"), "0");
    EXPECT_EQ(ProfileValue(text, "Level", "mode"), "") << "only the first section of a name counts";
    EXPECT_EQ(ProfileValue(text, "Level", "loa"), "");
    const std::string odd = "a=0\r\t[ Level ] LOAD=0\r[Level\rLOAD=1\r[next] ]\rMODE=2";
    EXPECT_EQ(ProfileValue(odd, "level", "LOAD"), "1") << "behind a bracket nothing counts";
    EXPECT_EQ(ProfileValue(odd, "next", "mode"), "2");
    EXPECT_EQ(ProfileValue("[Level]\n;LOAD=x", "Level", ";LOAD"), "") << "a note is no key";
}

TEST(Profile, WritesChangeOneLineAlone) {
    // Before and after LOAD=new in [Level].
    for (const auto& [before, after] :
         {std::pair<const char*, std::string>{"", "[Level]\nLOAD=new\n"},
          {"[level]\nA=1\nLoad = old\nB=2\n", "[level]\nA=1\nLOAD=new\nB=2\n"},
          {"[Level]\r\nLOAD=old\r\n; note\r\n", "[Level]\r\nLOAD=new\r\n; note\r\n"},
          {"[Level]\nLOAD=old", "[Level]\nLOAD=new"},
          {"[Level]\r\nA=1\r\n\r\n\r\n[B]\r\nLOAD=2\r\n",
           "[Level]\r\nA=1\r\nLOAD=new\r\n\r\n\r\n[B]\r\nLOAD=2\r\n"},
          {"[Level]\nA=1", "[Level]\nA=1\nLOAD=new\n"},
          {"; mine\n[B]\nX=1", "; mine\n[B]\nX=1\n[Level]\nLOAD=new\n"},
          {"[Level]\n;LOAD=old\nLOAD\n", "[Level]\n;LOAD=old\nLOAD\nLOAD=new\n"},
          {"[Level]\nLOAD=1\nLOAD=2\n[Level]\n", "[Level]\nLOAD=new\nLOAD=2\n[Level]\n"},
          {"[Level]\rLOAD=old\r\r[B]\r", "[Level]\rLOAD=new\r\r[B]\r"},
          {"[Level] x\rA=1", "[Level] x\rA=1\rLOAD=new\r"},
          {"\xEF\xBB\xBF[Level]\nLOAD=old\n", "\xEF\xBB\xBF[Level]\nLOAD=new\n"}}) {
        EXPECT_EQ(ProfileWith(before, "Level", "LOAD", "new"), after);
        EXPECT_EQ(ProfileValue(after, "Level", "load"), "new");
    }
    EXPECT_EQ(ProfileWith("", "Level", "LOAD", "x\nMAPLIST=y"), "[Level]\nLOAD=x\n")
        << "a value forges no lines";
    const std::string longest(LongestStoredValue, 'x');
    EXPECT_EQ(ProfileValue(ProfileWith("", "Level", "LOAD", longest + "y"), "Level", "LOAD"),
              longest);
}

TEST(Profile, WhatIsWrittenIsReadWhereverTheFileWasCut) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        const std::string whole =
            "[Level]" + end + "LOAD=a" + end + "[AutoMove]" + end + "MOVE=True" + end;
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            const std::string cut = whole.substr(0, length);
            const std::string written =
                ProfileWith(ProfileWith(cut, "AutoMove", "MOVE", "b"), "Level", "LOAD", "c");
            EXPECT_EQ(ProfileValue(written, "AutoMove", "MOVE"), "b") << cut;
            EXPECT_EQ(ProfileValue(written, "Level", "LOAD"), "c") << cut;
        }
    }
}

} // namespace tumbledeep
