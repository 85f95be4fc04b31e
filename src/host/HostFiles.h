// The host's files under the program's paths: "\" between folders, the host's root as drive Z:.
// Paths go in; host paths, bytes and settings come out. Failures are thrown as Failure, but the
// settings fail in silence. Both front ends build on it; the game itself only asks a Platform.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The host's path for one of the program's. One without a drive stays relative. One on a drive
/// other than Z: gives the empty path, under which no file is ever found.
std::filesystem::path HostPath(std::string_view programPath);

/// The program's path for one of the host's, made absolute, without a "\" at its end.
std::string ProgramPath(const std::filesystem::path& hostPath);

/// The path under which a file really lies: the one given if it exists, or else the one file of its
/// folder whose name differs only in the case of ASCII letters. With none or several of those, the
/// path as given.
std::filesystem::path FindFile(const std::filesystem::path& path);

/// The bytes of a file. Throws Failure: 53 when there is no such file, 75 when it can't be read.
std::string ReadFile(const std::filesystem::path& path);

/// Writes a new file beside the old one and renames it onto that, so that the file is whole at
/// every moment. One behind a link is replaced where it really lies. On failure returns false, with
/// the old file untouched.
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes);

/// Reads and writes one value of a settings file, as formats/Profile.h tells. A file that can't be
/// read gives "" and is not written to, one that is not there is made; failures go unnoticed.
std::string ReadProfile(std::string_view section, std::string_view key,
                        const std::string& programPath);
void WriteProfile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string& programPath);

} // namespace tumbledeep
