// The host's files under the program's paths: "\" between folders, the host's root as drive Z:.
// Paths stay bytes, whatever they mean in a language. Reading and writing is HostFiles.h's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The host's path for one of the program's. One without a drive stays relative. One on a drive
/// other than Z:, or with a NUL in it, gives the empty path, under which no file is ever found.
std::filesystem::path HostPath(std::string_view programPath);

/// The program's path for one of the host's, made absolute, without a "\" at its end.
std::string ProgramPath(const std::filesystem::path& hostPath);

/// The path under which a file really lies: the one given if it exists, or else the one file of its
/// folder whose name differs only in the case of ASCII letters. With none or several of those, the
/// path as given.
std::filesystem::path FindFile(const std::filesystem::path& path);

} // namespace tumbledeep
