// How a folder is told to be the game's, and the road from a program that was installed to its
// maps.
#include "host/GameFolders.h"

#include "host/HostFiles.h"
#include "host/HostPaths.h"

#include <cstdlib>

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

constexpr const char* InstalledMaps = "../share/games/tumbledeep";

bool IsThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

bool Holds(const fs::path& folder, const char* name) { return IsThere(FindFile(folder / name)); }

/// Absolute, or empty: a relative one means nothing to a program that a menu has started.
fs::path FromEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    const fs::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : fs::path();
}

} // namespace

fs::path GameFolders::Find(const fs::path& file) const {
    fs::path own = FindFile(file);
    if (Shipped.empty() || IsThere(own)) return own;
    const fs::path within = file.lexically_relative(Own);
    if (within.empty() || *within.begin() == "..") return own;
    fs::path shipped = FindFile(Shipped / within);
    return IsThere(shipped) ? shipped : own;
}

GameFolders FoldersOf(const fs::path& program, const std::optional<fs::path>& given) {
    if (given) return {*given, {}};
    const fs::path folder = program.parent_path();
    const bool hasMaps = Holds(folder, DefaultListName);
    if ((hasMaps || Holds(folder, SettingsName)) && IsWritableFolder(folder)) return {folder, {}};
    return {PlayersFolder(), hasMaps ? folder : (folder / InstalledMaps).lexically_normal()};
}

fs::path PlayersFolder() {
    const fs::path data = FromEnvironment("XDG_DATA_HOME");
    return (data.empty() ? "/" / FromEnvironment("HOME") / ".local/share" : data) / "tumbledeep";
}

} // namespace tumbledeep
