// The settings file on the disk: never half written, never lost, and nothing written outside its
// folder. Its text is in formats/ProfileTest.cpp.
#include "host/SettingsFile.h"

#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "support/TempFolder.h"

#include <csignal>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

constexpr const char* Ini = "Tumbledeep.ini";

bool Write(const fs::path& folder, std::string_view key, std::string_view value) {
    return WriteProfile("Level", key, value, ProgramPath(folder / Ini));
}

} // namespace

TEST(SettingsFile, ComesIntoBeingAndKeepsItsName) {
    const TempFolder folder;
    folder.Write("TUMBLEDEEP.INI", "");
    EXPECT_EQ(ReadProfile("Level", "load", ProgramPath(folder.Path / Ini)), "");
    EXPECT_TRUE(Write(folder.Path, "LOAD", "level two.TBM"));
    EXPECT_TRUE(Write(folder.Path, "MAPLIST", "Default"));
    EXPECT_TRUE(Write(folder.Path, "LOAD", "level three.TBM"));
    EXPECT_EQ(folder.Read("TUMBLEDEEP.INI"), "[Level]\nLOAD=level three.TBM\nMAPLIST=Default\n");
    EXPECT_EQ(ReadProfile("level", "load", ProgramPath(folder.Path / Ini)), "level three.TBM");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(SettingsFile, LinkIsFollowedInItsFolderAndReplacedIfItLeadsOut) {
    const TempFolder outside;
    outside.Write("theirs", "[Level]\nMAPLIST=a\n");
    for (const auto& [link, written] : {std::pair<fs::path, const char*>{"real", "real"},
                                        {"sub/real", "sub/real"},
                                        {outside.Path / "theirs", Ini},
                                        {outside.Path / "none", Ini},
                                        {"../none", Ini},
                                        {Ini, Ini}}) {
        const TempFolder folder;
        fs::create_directory(folder.Path / "sub");
        fs::create_symlink(link, folder.Path / Ini);
        EXPECT_TRUE(Write(folder.Path, "LOAD", "x")) << link;
        EXPECT_EQ(fs::is_symlink(folder.Path / Ini), written != Ini) << link;
        EXPECT_TRUE(folder.Read(written).starts_with("[Level]\n")) << link;
        EXPECT_EQ(ReadProfile("Level", "Load", ProgramPath(folder.Path / Ini)), "x") << link;
        EXPECT_EQ(ReadProfile("Level", "MapList", ProgramPath(folder.Path / Ini)),
                  link == outside.Path / "theirs" ? "a" : "");
    }
    EXPECT_EQ(outside.Read("theirs"), "[Level]\nMAPLIST=a\n");
    EXPECT_EQ(outside.Entries(), 1);
}

TEST(SettingsFile, WriteThatFailsSaysSoAndChangesNothing) {
    const TempFolder folder;
    fs::create_directory(folder.Path / Ini);
    EXPECT_FALSE(Write(folder.Path, "LOAD", "x"));
    EXPECT_FALSE(ReplaceFile(folder.Path / Ini, "x"));
    EXPECT_TRUE(fs::is_directory(folder.Path / Ini));
    EXPECT_FALSE(Write(folder.Path / "gone", "LOAD", "x"));
    fs::remove(folder.Path / Ini);

    // A disk that is full, by a limit on what this process may write.
    const std::string old = "[Level]\nLOAD=mine\n" + std::string(100, ';');
    folder.Write(Ini, old);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit full{50, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const bool written = Write(folder.Path, "LOAD", "x");
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_FALSE(written);
    EXPECT_EQ(folder.Read(Ini), old);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(SettingsFile, OneThatCannotBeReadIsNotReplaced) {
    const TempFolder folder;
    folder.Write(Ini, "[Level]\nLOAD=mine\n");
    fs::permissions(folder.Path, fs::perms::all);
    fs::permissions(folder.Path / Ini, fs::perms::none);
    // Root reads everything, so the test gives that up for a while.
    const uid_t user = geteuid();
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(user == 0 ? seteuid(nobody) : 0, 0);
    EXPECT_FALSE(Write(folder.Path, "LOAD", "x"));
    ASSERT_EQ(user == 0 ? seteuid(user) : 0, 0);
    fs::permissions(folder.Path / Ini, fs::perms::owner_all);
    EXPECT_EQ(folder.Read(Ini), "[Level]\nLOAD=mine\n");
    EXPECT_EQ(fs::status(folder.Path / Ini).permissions(), fs::perms::owner_all);
}

TEST(SettingsFile, WritersLoseNothingOfOneAnother) {
    const TempFolder folder;
    int lost = 0;
    const auto write = [&folder](const std::string& key, int& missed) {
        for (int i = 0; i < 100; ++i) {
            Write(folder.Path, key, std::to_string(i));
            const auto path = ProgramPath(folder.Path / Ini);
            if (ReadProfile("Level", key, path) != std::to_string(i)) ++missed;
        }
    };
    int lostThere = 0;
    std::thread other(write, "MAPLIST", std::ref(lostThere));
    write("LOAD", lost);
    other.join();
    EXPECT_EQ(lost + lostThere, 0);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(SettingsFile, OneThatIsStoppedInItsWriteStopsNobody) {
    const TempFolder folder;
    const FolderLock stopped(folder.Path);
    folder.Write("Tumbledeep.ini.0123abcd.new", "its text");
    EXPECT_TRUE(stopped.Held());
    EXPECT_TRUE(Write(folder.Path, "LOAD", "x"));
    EXPECT_EQ(folder.Read("Tumbledeep.ini.0123abcd.new"), "its text") << "that may still be in use";
}

TEST(SettingsFile, LeftoversOfACrashAreCleared) {
    const TempFolder folder;
    for (const char* name : {"Tumbledeep.ini.0123abcd.new", "Tumbledeep.ini.new",
                             "Tumbledeep.ini.my notes.new", "Other.ini.0123abcd.new"}) {
        folder.Write(name, "");
    }
    EXPECT_TRUE(Write(folder.Path, "LOAD", "x"));
    EXPECT_FALSE(fs::exists(folder.Path / "Tumbledeep.ini.0123abcd.new"));
    EXPECT_EQ(folder.Entries(), 4) << "what is no leftover stays";
}

} // namespace tumbledeep
