// What a recorder writes down plays to the same end, whatever the player does.
#include "soak/RandomGame.h"
#include "windows/hands/Recorder.h"
#include "windows/hands/Replay.h"

#include <gmock/gmock.h>

namespace tumbledeep {

namespace {

using Do = PlayerAct::Do;

constexpr const char* Map = "Z:\\game\\m.TBM";

/// Now and then one with a line at its end that can't be read.
std::string MapOf(std::uint32_t seed) {
    return RandomMap(seed) + (seed % 5 == 0 ? "dirt x 0\n" : "");
}

PlayerAct DrawnAct(Dice& dice) {
    PlayerAct act;
    act.What = std::array{Do::Type,    Do::Type,  Do::Type,     Do::Press,     Do::Press,
                          Do::Release, Do::Click, Do::GotFocus, Do::LostFocus, Do::Menu}
                   .at(static_cast<std::size_t>(dice.Below(10)));
    act.Text = act.What == Do::Menu ? dice.OneOf("MnuStartLastMap MnuMode1 MnuMapList MnuRestart")
                                    : dice.OneOf("w a s d w a s d p x \n ww");
    act.Key = Headings.at(static_cast<std::size_t>(dice.Below(4)));
    return act;
}

struct Recorded {
    explicit Recorded(std::uint32_t seed) {
        MemoryPlatform system;
        system.SeedNumber = seed;
        system.CommandLine = Map;
        system.Files[Map] = MapOf(seed);
        system.Settings() = "[AutoMove]\nMOVE=True\nMODE=3\n";
        Recorder recorder(system, [this](const std::string& line) { Lines += line; });
        frmMain game(recorder);
        Dice dice(seed);
        try {
            recorder.Start(game);
            for (int period = 0; period < 300; ++period) {
                if (dice.Once(60)) system.Answers.emplace_back("Z:\\game\\some.TBL");
                while (dice.Once(2)) recorder.Act(game, DrawnAct(dice));
                recorder.Period(game);
            }
            // What is done while the clock stands for good has no step to be played in.
            recorder.Act(game, {Do::GotFocus});
            recorder.Period(game);
        } catch (const ProgramEnd&) {
            HasEnded = true;
        }
        recorder.Finish(game);
        Board = game.ActiveChild.HashValue();
    }
    std::string Lines;
    std::uint64_t Board = 0;
    bool HasEnded = false;
};

TEST(Hands, ARecordingPlaysToTheSameEnd) {
    int ends = 0;
    for (std::uint32_t seed = 1; seed <= 60; ++seed) {
        const Recorded recorded(seed);
        MemoryPlatform system;
        system.Files[Map] = MapOf(seed);
        Replay replay(system, ReadScript("lines", recorded.Lines, &IsMenuHandler),
                      ReadRecordingHead(recorded.Lines), Map);
        frmMain game(replay);
        try {
            replay.Start(game);
            const std::string stop = recorded.Lines.substr(recorded.Lines.rfind("# stop ") + 7);
            for (int step = std::stoi(stop); step > 0; --step) replay.Period(game);
        } catch (const ProgramEnd&) {
            ++ends;
        }
        ASSERT_THAT(recorded.Lines, testing::EndsWith("# " + replay.LastLine(game) + "\n")) << seed;
        ASSERT_EQ(recorded.Board, game.ActiveChild.HashValue()) << seed;
        EXPECT_FALSE(replay.MapHasChanged());
        EXPECT_THAT(system.Log, testing::Not(testing::HasSubstr("; start"))) << "no process";
        EXPECT_EQ(system.Settings(), "") << "no settings";
    }
    EXPECT_GT(ends, 5);
}

TEST(Hands, AKeyHeldAtARecordingsEndIsHeldInItsReplay) {
    MemoryPlatform system;
    system.Files[Map] = "you 0 0\ngem1type 3600 3600\n";
    const std::string lines = "answer no\nat 5 press Right\n# stop 250 tick 250\n";
    Replay replay(system, ReadScript("s", lines, &IsMenuHandler), ReadRecordingHead(lines), Map);
    frmMain game(replay);
    replay.Start(game);
    for (int step = 0; step < 250; ++step) replay.Period(game);
    EXPECT_EQ(game.ActiveChild.YouCol, 42) << "a step in every six ticks";
}

TEST(Hands, BehindAScriptTheKeysAreThePlayers) {
    MemoryPlatform system;
    system.Files[Map] = "you 0 0\ngem1type 3600 3600\n";
    RecordingHead head;
    head.Checksum = ChecksumOf(system.Files[Map]) + 1;
    Replay replay(system, ReadScript("s", "answer no\nat 5 press Right\n", &IsMenuHandler), head,
                  Map);
    frmMain game(replay);
    replay.Start(game);
    EXPECT_TRUE(replay.MapHasChanged());
    replay.Act(game, {Do::Type, "s"});
    EXPECT_EQ(game.ActiveChild.YouRow, 1);
    replay.Act(game, {Do::Type, "p"});
    replay.Period(game);
    EXPECT_EQ(game.ActiveChild.TickCount, 0) << "the watcher has made it wait";
    replay.Act(game, {Do::Type, "p"});
    for (int step = 0; step < 105; ++step) replay.Period(game);
    EXPECT_TRUE(replay.IsOver());
    const float column = game.ActiveChild.YouCol;
    EXPECT_GT(column, 10);
    for (int step = 0; step < 20; ++step) replay.Period(game);
    EXPECT_EQ(game.ActiveChild.YouCol, column) << "the script's keys are let go";
    replay.Act(game, {Do::Type, "s"});
    EXPECT_EQ(game.ActiveChild.YouRow, 2);
}

} // namespace

} // namespace tumbledeep
