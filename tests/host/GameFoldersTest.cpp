// Which folder is the game's own, and what is read from the one that ships.
#include "host/GameFolders.h"

#include "support/TempFolder.h"

#include <cstdlib>

namespace tumbledeep {

namespace fs = std::filesystem;

TEST(GameFolders, UnpackedGamesKeepAllBesideThemselvesAndInstalledOnesInThePlayersFolder) {
    const TempFolder root;
    const fs::path players = root.Path / "home" / "tumbledeep";
    setenv("XDG_DATA_HOME", players.parent_path().c_str(), 1);
    const fs::path unpacked = root.Path / "games";
    fs::create_directories(unpacked);
    const fs::path program = unpacked / "tumbledeep";

    EXPECT_EQ(FoldersOf(program, "/given").Own, "/given");
    EXPECT_EQ(FoldersOf(program).Own, players);
    EXPECT_EQ(FoldersOf(program).Shipped, root.Path / "share" / "games" / "tumbledeep");
    for (const char* name : {"Default.TBL", "tumbledeep.INI"}) {
        root.Write(fs::path("games") / name, "");
        EXPECT_EQ(FoldersOf(program).Own, unpacked) << name;
        EXPECT_EQ(FoldersOf(program).Shipped, "") << name;
        fs::remove(unpacked / name);
    }
    setenv("XDG_DATA_HOME", "relative", 1);
    setenv("HOME", "/home/u", 1);
    EXPECT_EQ(PlayersFolder(), "/home/u/.local/share/tumbledeep");
}

TEST(GameFolders, WhatThePlayersFolderHasNoneOfIsReadFromTheOneThatShips) {
    const TempFolder root;
    const GameFolders folders{root.Path / "own", root.Path / "shipped"};
    for (const fs::path& folder : {folders.Own, folders.Shipped}) fs::create_directories(folder);
    root.Write("own/Both.TBM", "");
    root.Write("shipped/both.tbm", "");
    root.Write("shipped/One.TBM", "");
    root.Write("outside.TBM", "");
    EXPECT_EQ(folders.Find(folders.Own / "BOTH.TBM"), folders.Own / "Both.TBM");
    EXPECT_EQ(folders.Find(folders.Own / "one.TBM"), folders.Shipped / "One.TBM");
    EXPECT_EQ(folders.Find(folders.Own / "none.TBM"), folders.Own / "none.TBM");
    EXPECT_EQ(folders.Find(root.Path / "One.TBM"), root.Path / "One.TBM") << "another folder's";
    EXPECT_EQ(folders.Find(folders.Own / ".." / "outside.TBM"), folders.Own / ".." / "outside.TBM");
}

} // namespace tumbledeep
