// Names of files as the program writes them: "\" between folders, an absolute one with a drive
// letter in front, an extension of four characters.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

/// The drive that stands for the host's root, the only one that the host has.
inline constexpr std::string_view HostDrive = "Z:";

constexpr bool HasDrive(std::string_view path) { return path.size() >= 2 && path[1] == ':'; }

/// The part of a path up to and with the last "\", "" if there is none, and the part behind it.
std::string getpath(std::string_view path);
std::string getfilename(std::string_view path);

/// The text less its last 4 characters: a file name without its extension.
std::string WithoutExtension(std::string_view name);

/// A map's name by its extension, in capitals or small letters alone.
constexpr bool IsMapName(std::string_view name) {
    return name.ends_with(".TBM") || name.ends_with(".tbm");
}

} // namespace tumbledeep
