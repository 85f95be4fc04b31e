// The host's files under the program's paths: "\" between folders, the host's root as drive Z:.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The host's path for one of the program's. A path without a drive is taken as it stands; one on
/// another drive than the host's has none, and the empty path is never found.
std::filesystem::path HostPath(std::string_view programPath);

/// The program's path for one of the host's, made absolute, without a "\" at its end.
std::string ProgramPath(const std::filesystem::path& hostPath);

/// The file of exactly that name, failing that the one file of the same folder whose name differs
/// only in the case of ASCII letters, failing that the path as given.
std::filesystem::path FindFile(const std::filesystem::path& path);

/// The bytes of a file. Throws Failure: 53 when there is no such file, 75 when it can't be read.
std::string ReadFile(const std::filesystem::path& path);

/// Writes the file beside itself and renames, so that it is whole at every moment. A file behind a
/// link is replaced where it really lies. Returns false, with the old file untouched, on failure.
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes);

/// Reads and writes one value of a settings file; see Profile.h. Failures are silent.
std::string ReadProfile(std::string_view section, std::string_view key,
                        const std::string& programPath);
void WriteProfile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string& programPath);

} // namespace tumbledeep
