// Where the game's files lie: a program that was unpacked keeps all beside itself, one that was
// installed reads what ships and writes to the player's own folder. The names of files come from
// the game; their paths are HostPaths.h's.
#pragma once

#include <filesystem>
#include <optional>

namespace tumbledeep {

/// The names of the files by which a folder is known to be the game's.
inline constexpr const char* SettingsName = "Tumbledeep.ini";
inline constexpr const char* DefaultListName = "Default.TBL";

struct GameFolders {
    /// The program's directory, as the game knows it: all that is written is written there.
    std::filesystem::path Own;
    /// Maps and lists that Own has none of; empty if Own has them all.
    std::filesystem::path Shipped;

    /// Where a file of Own is read: there, or under the same name among those that ship. A name in
    /// another case counts. The path as given where neither has it.
    std::filesystem::path Find(const std::filesystem::path& file) const;
};

/// The folders for a program file, all paths absolute. Own is `given`, if any; else the program's
/// folder if it holds settings or a default list and can be written; else the player's folder,
/// which may not be there yet.
GameFolders FoldersOf(const std::filesystem::path& program,
                      const std::optional<std::filesystem::path>& given = std::nullopt);

/// The player's own folder, by the rules of the XDG base directories, as the toolkit has it too:
/// "tumbledeep" below $XDG_DATA_HOME, or below ~/.local/share.
std::filesystem::path PlayersFolder();

} // namespace tumbledeep
