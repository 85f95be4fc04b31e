// Names of files as the program writes them, taken apart as text: "\" between folders, an absolute
// one with a drive letter in front, an extension of four characters. The host is not asked here;
// its own paths are host/HostPaths.h's.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

/// The drive that stands for the host's root, the only one that the host has.
inline constexpr std::string_view HostDrive = "Z:";

/// Whether a path is absolute: any character in front of a colon is a drive.
constexpr bool HasDrive(std::string_view path) { return path.size() >= 2 && path[1] == ':'; }

/// The part of a path up to and with the last "\"; "" if there is none.
std::string getpath(std::string_view path);
/// The part of a path behind the last "\"; all of it if there is none.
std::string getfilename(std::string_view path);

/// The text less its last 4 characters, a file name without its extension; "" if it has fewer.
std::string WithoutExtension(std::string_view name);

/// The whole path for one that a script has: "/" counts as "\", one without a drive letter starts
/// at a directory, one that begins with "\" at the host's root.
std::string PathFrom(const std::string& directory, std::string path);

/// Whether a name ends in ".TBM" or ".tbm"; mixed case does not count.
constexpr bool IsMapName(std::string_view name) {
    return name.ends_with(".TBM") || name.ends_with(".tbm");
}

} // namespace tumbledeep
