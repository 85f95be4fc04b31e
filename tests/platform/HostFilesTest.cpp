// Paths, names in another case, and settings that are never half written.
#include "platform/HostFiles.h"

#include "platform/Platform.h"
#include "support/TempFolder.h"

namespace tumbledeep {

namespace {

namespace fs = std::filesystem;

int FailureOf(const fs::path& path) {
    try {
        ReadFile(path);
        return 0;
    } catch (const Failure& failure) {
        return failure.Number;
    }
}

/// True where permissions do not bite, as for the superuser.
bool CanWriteInto(const fs::path& folder) {
    std::ofstream(folder / "probe") << 'x';
    return fs::remove(folder / "probe");
}

TEST(HostFiles, PathsBothWays) {
    EXPECT_EQ(HostPath("Z:\\games\\tumble\\a b.TBM"), "/games/tumble/a b.TBM");
    EXPECT_EQ(HostPath("Z:\\games\\\\a.TBM"), "/games/a.TBM");
    EXPECT_EQ(HostPath("Z:\\games\\..\\a.TBM"), "/a.TBM");
    EXPECT_EQ(HostPath("sub\\a.TBM"), "sub/a.TBM");
    EXPECT_EQ(HostPath("/host/a.TBM"), "/host/a.TBM");
    EXPECT_EQ(ProgramPath("/games/tumble/"), "Z:\\games\\tumble");
    EXPECT_EQ(ProgramPath("/games/./x/../tumble"), "Z:\\games\\tumble");
    EXPECT_EQ(ProgramPath("."), ProgramPath(fs::current_path()));
    EXPECT_EQ(HostPath(ProgramPath("/games") + "\\a.TBM"), "/games/a.TBM");
}

TEST(HostFiles, NamesInAnotherCase) {
    const TempFolder folder;
    folder.Write("Level One.TBM", "1");
    folder.Write("two.TBM", "2");
    folder.Write("Two.TBM", "3");
    EXPECT_EQ(FindFile(folder.Path / "level one.tbm"), folder.Path / "Level One.TBM");
    EXPECT_EQ(FindFile(folder.Path / "two.TBM"), folder.Path / "two.TBM") << "the exact one";
    EXPECT_EQ(FindFile(folder.Path / "TWO.TBM"), folder.Path / "TWO.TBM") << "two candidates";
    EXPECT_EQ(FindFile(folder.Path / "none"), folder.Path / "none");
    EXPECT_EQ(FindFile(folder.Path / "gone" / "none"), folder.Path / "gone" / "none");
}

TEST(HostFiles, ReadFailuresHaveTheirNumbers) {
    const TempFolder folder;
    folder.Write("a", std::string("x\0y", 3));
    EXPECT_EQ(ReadFile(folder.Path / "a"), std::string("x\0y", 3));
    EXPECT_EQ(FailureOf(folder.Path / "none"), 53);
    EXPECT_EQ(FailureOf(folder.Path / "none" / "none"), 53);
    EXPECT_EQ(FailureOf(folder.Path), 75);
    EXPECT_EQ(FailureOf(folder.Path / std::string(300, 'x')), 53) << "no such name can exist";
}

TEST(HostFiles, SettingsComeIntoBeingAndLeaveNothingBeside) {
    const TempFolder folder;
    const std::string ini = ProgramPath(folder.Path) + "\\Tumbledeep.ini";
    EXPECT_EQ(ReadProfile("Level", "load", ini), "");
    WriteProfile("Level", "LOAD", "level two.TBM", ini);
    WriteProfile("AutoMove", "MOVE", "True", ini);
    WriteProfile("Level", "LOAD", "level three.TBM", ini);
    EXPECT_EQ(folder.Read("Tumbledeep.ini"),
              "[Level]\nLOAD=level three.TBM\n[AutoMove]\nMOVE=True\n");
    EXPECT_EQ(ReadProfile("level", "load", ini), "level three.TBM");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(HostFiles, SettingsKeepTheirNameTheirPlaceAndTheirPermissions) {
    const TempFolder folder;
    fs::create_directory(folder.Path / "real");
    folder.Write("real/settings", "[Level]\nLOAD=old\n");
    fs::permissions(folder.Path / "real/settings", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real/settings", folder.Path / "TUMBLEDEEP.INI");
    WriteProfile("Level", "LOAD", "new", ProgramPath(folder.Path) + "\\Tumbledeep.ini");
    EXPECT_EQ(folder.Read("real/settings"), "[Level]\nLOAD=new\n");
    EXPECT_TRUE(fs::is_symlink(folder.Path / "TUMBLEDEEP.INI"));
    EXPECT_EQ(folder.Entries(), 2);
    EXPECT_EQ(fs::status(folder.Path / "real/settings").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(HostFiles, WriteThatFailsChangesNothing) {
    const TempFolder folder;
    const std::string ini = ProgramPath(folder.Path) + "\\Tumbledeep.ini";
    fs::create_directory(folder.Path / "Tumbledeep.ini");
    WriteProfile("Level", "LOAD", "x", ini);
    EXPECT_TRUE(fs::is_directory(folder.Path / "Tumbledeep.ini"));
    EXPECT_EQ(folder.Entries(), 1);
    EXPECT_EQ(ReadProfile("Level", "load", ini), "");
    EXPECT_FALSE(ReplaceFile(folder.Path / "Tumbledeep.ini", "x"));
    EXPECT_FALSE(ReplaceFile(folder.Path / "gone" / "file", "x"));
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(HostFiles, ReadOnlyFolderKeepsItsSettings) {
    const TempFolder folder;
    folder.Write("Tumbledeep.ini", "[Level]\nLOAD=old\n");
    fs::permissions(folder.Path, fs::perms::owner_read | fs::perms::owner_exec);
    if (CanWriteInto(folder.Path)) GTEST_SKIP() << "permissions do not bite here";
    WriteProfile("Level", "LOAD", "new", ProgramPath(folder.Path) + "\\Tumbledeep.ini");
    EXPECT_EQ(folder.Read("Tumbledeep.ini"), "[Level]\nLOAD=old\n");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(HostFiles, SettingsThatCannotBeReadAreNotReplaced) {
    const TempFolder folder;
    folder.Write("Tumbledeep.ini", "[Level]\nLOAD=old\n");
    fs::permissions(folder.Path / "Tumbledeep.ini", fs::perms::none);
    if (FailureOf(folder.Path / "Tumbledeep.ini") == 0)
        GTEST_SKIP() << "nothing is unreadable here";
    WriteProfile("Level", "LOAD", "new", ProgramPath(folder.Path) + "\\Tumbledeep.ini");
    fs::permissions(folder.Path / "Tumbledeep.ini", fs::perms::owner_read);
    EXPECT_EQ(folder.Read("Tumbledeep.ini"), "[Level]\nLOAD=old\n");
}

} // namespace

} // namespace tumbledeep
