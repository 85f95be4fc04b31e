// The settings file on the host's disk. Section, key and value go in and out, the file lies under a
// path of the program's. How its text looks is formats/Profile.h's, which keys the game has
// windows/'s.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The whole text of a settings file, "" when it can't be read.
std::string ReadSettings(const std::string& programPath);

/// The value of a key; "" when there is none, or the file can't be read.
std::string ReadProfile(std::string_view section, std::string_view key,
                        const std::string& programPath);

/// Writes a value, as formats/Profile.h tells: reads, changes and replaces the file under a lock,
/// so that several copies of the game lose nothing of one another. A file that is not there is
/// made. False when that fails; one that is there and can't be read is not written to.
bool WriteProfile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string& programPath);

/// Where the settings under a path are written. A link is followed as long as it stays in its own
/// folder or below; one that leads elsewhere, or in a circle, is replaced by a file itself: the
/// game writes nothing outside its folder.
std::filesystem::path WrittenFile(const std::filesystem::path& path);

} // namespace tumbledeep
