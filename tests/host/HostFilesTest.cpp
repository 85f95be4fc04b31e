// The host's files: paths both ways, names in another case, what is read and what is refused.
#include "host/HostFiles.h"
#include "host/HostPaths.h"

#include "base/Failure.h"
#include "support/TempFolder.h"

#include <sys/stat.h>

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
    using namespace std::string_literals;
    EXPECT_EQ(HostPath("Z:\\games\\a.TBM\0.TBM"s), "") << "a NUL would name another file";
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

/// The failure with which a file is refused, 0 if it is read.
int Refusal(const fs::path& file) {
    try {
        ReadFile(file);
        return 0;
    } catch (const Failure& failure) {
        return failure.Number;
    }
}

TEST(HostFiles, OnlyRegularFilesOfBoundedSizeAreRead) {
    const TempFolder folder;
    mkfifo((folder.Path / "pipe").c_str(), 0600);
    fs::create_symlink("/dev/zero", folder.Path / "endless");
    fs::create_symlink("circle", folder.Path / "circle");
    fs::create_symlink("nowhere", folder.Path / "dangling");
    for (const auto& [name, size] :
         {std::pair{"largest", LargestFile}, {"larger", LargestFile + 1}}) {
        folder.Write(name, "");
        fs::resize_file(folder.Path / name, size);
    }
    for (const auto& [name, refusal] : {std::pair{"pipe", Failure::FileAccess},
                                        {"endless", Failure::FileAccess},
                                        {"larger", Failure::FileAccess},
                                        {"largest", 0},
                                        {"circle", Failure::FileNotFound},
                                        {"dangling", Failure::FileNotFound}}) {
        EXPECT_EQ(Refusal(folder.Path / name), refusal) << name;
    }
    EXPECT_EQ(Refusal(folder.Path / std::string(300, 'x')), Failure::FileNotFound);
    EXPECT_EQ(ReadFile(folder.Path / "largest").size(), LargestFile);
}

} // namespace tumbledeep
