// Settings text: a player's other lines are never lost.
#include "platform/Profile.h"

#include <gtest/gtest.h>

#include <vector>

namespace tumbledeep {

namespace {

TEST(Profile, ValuesAreFoundWithoutRegardToCase) {
    const std::string text = "\xEF\xBB\xBF[other]\nload=0\n; [Level]\n\n[ LEVEL ]\r\n;load=1\n"
                             "nonsense\n  LoAd  = two words =x \r\nLOAD=3\n[Level]\nMODE=4";
    EXPECT_EQ(ProfileValue(text, "Level", "load"), " two words =x ") << "as it stands";
    EXPECT_EQ(ProfileValue(text, "other", "LOAD"), "0");
    EXPECT_EQ(ProfileValue(text, "Level", "mode"), "") << "only the first section of a name counts";
    EXPECT_EQ(ProfileValue(text, "Level", "loa"), "");
    EXPECT_EQ(ProfileValue("", "Level", "load"), "");
    EXPECT_EQ(ProfileValue("[Level]\nLOAD=x", "Level", "load"), "x");
}

TEST(Profile, WritesChangeOneLineAlone) {
    struct Case {
        const char* What;
        std::string Before;
        std::string After; ///< of LOAD=new in [Level]
    };
    for (const Case& c : std::vector<Case>{
             {"nothing yet", "", "[Level]\nLOAD=new\n"},
             {"in its place, odd case", "[level]\nA=1\nLoad = old\nB=2\n",
              "[level]\nA=1\nLOAD=new\nB=2\n"},
             {"lines of Windows", "[Level]\r\nLOAD=old\r\n; note\r\n",
              "[Level]\r\nLOAD=new\r\n; note\r\n"},
             {"last line without an end", "[Level]\nLOAD=old", "[Level]\nLOAD=new"},
             {"new key behind the last full line", "[Level]\r\nA=1\r\n\r\n\r\n[B]\r\nLOAD=2\r\n",
              "[Level]\r\nA=1\r\nLOAD=new\r\n\r\n\r\n[B]\r\nLOAD=2\r\n"},
             {"new key at an end without a line end", "[Level]\nA=1", "[Level]\nA=1\nLOAD=new\n"},
             {"new section at the end", "; mine\n[B]\nX=1",
              "; mine\n[B]\nX=1\n[Level]\nLOAD=new\n"},
             {"comments and nonsense stay", "[Level]\n;LOAD=old\nLOAD\n",
              "[Level]\n;LOAD=old\nLOAD\nLOAD=new\n"},
             {"the first of two sections, the first of two keys",
              "[Level]\nLOAD=1\nLOAD=2\n[Level]\nLOAD=3\n",
              "[Level]\nLOAD=new\nLOAD=2\n[Level]\nLOAD=3\n"},
             {"a mark in front", "\xEF\xBB\xBF[Level]\nLOAD=old\n",
              "\xEF\xBB\xBF[Level]\nLOAD=new\n"},
             {"an empty section before another", "[Level]\n[B]\n", "[Level]\nLOAD=new\n[B]\n"}}) {
        EXPECT_EQ(ProfileWith(c.Before, "Level", "LOAD", "new"), c.After) << c.What;
        EXPECT_EQ(ProfileValue(c.After, "Level", "load"), "new") << c.What;
    }
    EXPECT_EQ(ProfileWith("", "Level", "LOAD", "x\nMAPLIST=y"), "[Level]\nLOAD=x\n")
        << "a value forges no lines";
}

} // namespace

} // namespace tumbledeep
