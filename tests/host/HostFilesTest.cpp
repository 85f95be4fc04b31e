// The host's files: paths both ways, names in another case, and settings that are never half
// written. The text of settings is in formats/ProfileTest.cpp.
#include "host/HostFiles.h"

#include "base/Failure.h"
#include "support/TempFolder.h"

#include <unistd.h>

namespace tumbledeep {

namespace fs = std::filesystem;

TEST(HostFiles, PathsBothWays) {
    EXPECT_EQ(HostPath("Z:\\games\\\\a.TBM"), "/games/a.TBM");
    EXPECT_EQ(HostPath("Z:\\games\\..\\a.TBM"), "/a.TBM");
    EXPECT_EQ(HostPath("z:/games/a.TBM"), "/games/a.TBM");
    EXPECT_EQ(HostPath("sub\\a.TBM"), "sub/a.TBM");
    EXPECT_EQ(HostPath("/host/a.TBM"), "/host/a.TBM");
    EXPECT_THROW(ReadFile(FindFile(HostPath("C:\\games\\a.TBM"))), Failure);
    EXPECT_EQ(HostPath("C:\\tmp"), "") << "only Z: is the host's";
    EXPECT_EQ(ProgramPath("/games/./x/../tumble"), "Z:\\games\\tumble");
    EXPECT_EQ(ProgramPath("."), ProgramPath(fs::current_path()));
}

TEST(HostFiles, NamesInAnotherCaseAndReads) {
    const TempFolder folder;
    folder.Write("Level One.TBM", std::string("x\0y", 3));
    folder.Write("two.TBM", "");
    folder.Write("Two.TBM", "");
    EXPECT_EQ(ReadFile(folder.Path / "Level One.TBM"), std::string("x\0y", 3));
    EXPECT_THROW(ReadFile(folder.Path / "none"), Failure);
    EXPECT_THROW(ReadFile(folder.Path), Failure);
    EXPECT_EQ(FindFile(folder.Path / "level one.tbm"), folder.Path / "Level One.TBM");
    EXPECT_EQ(FindFile(folder.Path / "two.TBM"), folder.Path / "two.TBM") << "the exact one";
    EXPECT_EQ(FindFile(folder.Path / "TWO.TBM"), folder.Path / "TWO.TBM") << "two candidates";
    EXPECT_EQ(FindFile(folder.Path / "gone" / "none"), folder.Path / "gone" / "none");
}

TEST(HostFiles, SettingsComeIntoBeingKeepTheirPlaceAndLeaveNothingBeside) {
    const TempFolder folder;
    fs::create_symlink("real", folder.Path / "TUMBLEDEEP.INI");
    folder.Write("real", "");
    const std::string ini = ProgramPath(folder.Path) + "\\Tumbledeep.ini";
    EXPECT_EQ(ReadProfile("Level", "load", ini), "");
    WriteProfile("Level", "LOAD", "level two.TBM", ini);
    WriteProfile("AutoMove", "MOVE", "True", ini);
    WriteProfile("Level", "LOAD", "level three.TBM", ini);
    EXPECT_EQ(folder.Read("real"), "[Level]\nLOAD=level three.TBM\n[AutoMove]\nMOVE=True\n");
    EXPECT_EQ(ReadProfile("level", "load", ini), "level three.TBM");
    EXPECT_EQ(folder.Entries(), 2);
}

TEST(HostFiles, WriteThatFailsChangesNothing) {
    const TempFolder folder;
    const std::string ini = ProgramPath(folder.Path) + "\\Tumbledeep.ini";
    fs::create_directory(folder.Path / "Tumbledeep.ini");
    WriteProfile("Level", "LOAD", "x", ini);
    EXPECT_TRUE(fs::is_directory(folder.Path / "Tumbledeep.ini"));
    EXPECT_FALSE(ReplaceFile(folder.Path / "Tumbledeep.ini", "x"));
    EXPECT_FALSE(ReplaceFile(folder.Path / "gone" / "file", "x"));
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(HostFiles, SettingsThatCannotBeReadAreNotReplaced) {
    const TempFolder folder;
    folder.Write("Tumbledeep.ini", "[Level]\nLOAD=mine\n");
    fs::permissions(folder.Path, fs::perms::all);
    fs::permissions(folder.Path / "Tumbledeep.ini", fs::perms::none);
    // Root reads everything, so the test gives that up for a while.
    const uid_t user = geteuid();
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(user == 0 ? seteuid(nobody) : 0, 0);
    WriteProfile("Level", "LOAD", "x", ProgramPath(folder.Path) + "\\Tumbledeep.ini");
    ASSERT_EQ(user == 0 ? seteuid(user) : 0, 0);
    fs::permissions(folder.Path / "Tumbledeep.ini", fs::perms::owner_all);
    EXPECT_EQ(folder.Read("Tumbledeep.ini"), "[Level]\nLOAD=mine\n");
}

} // namespace tumbledeep
