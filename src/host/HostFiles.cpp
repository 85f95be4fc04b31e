// How paths are turned, and how files are found, read and replaced whole. The standard library does
// all of it, so that both front ends can share it.
#include "host/HostFiles.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "formats/Profile.h"
#include "formats/ProgramPath.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tumbledeep {

namespace fs = std::filesystem;

fs::path HostPath(std::string_view programPath) {
    // "z:" is the same drive as "Z:".
    const bool fromRoot = SameButCase(programPath.substr(0, HostDrive.size()), HostDrive);
    if (HasDrive(programPath) && !fromRoot) return {};
    std::string path(fromRoot ? programPath.substr(HostDrive.size()) : programPath);
    std::replace(path.begin(), path.end(), '\\', '/');
    const fs::path host(path);
    return (fromRoot ? fs::path("/") / host.relative_path() : host).lexically_normal();
}

std::string ProgramPath(const fs::path& hostPath) {
    std::string path(HostDrive);
    path += fs::absolute(hostPath).lexically_normal().generic_string();
    while (path.ends_with('/')) path.pop_back();
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

fs::path FindFile(const fs::path& path) {
    std::error_code error;
    if (fs::exists(path, error)) return path;
    const std::string wanted = path.filename().string();
    fs::path found;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (!SameButCase(entry->path().filename().string(), wanted)) continue;
        if (!found.empty()) return path;
        found = entry->path();
    }
    return found.empty() ? path : found;
}

std::string ReadFile(const fs::path& path) {
    std::error_code error;
    const auto status = fs::status(path, error);
    if (!fs::exists(status) && error != std::errc::permission_denied) {
        throw Failure{Failure::FileNotFound};
    }
    if (fs::is_directory(status)) throw Failure{Failure::FileAccess};
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file) throw Failure{Failure::FileAccess};
    return bytes;
}

namespace {

/// The path of a file that does not exist yet, in the same folder as another.
fs::path FreeNameBeside(const fs::path& path) {
    std::error_code error;
    fs::path name = path;
    name += ".new";
    while (fs::exists(fs::symlink_status(name, error))) name += "-";
    return name;
}

} // namespace

bool ReplaceFile(const fs::path& path, std::string_view bytes) {
    std::error_code error;
    fs::path target = fs::weakly_canonical(path, error);
    if (error) target = path;
    const fs::path fresh = FreeNameBeside(target);
    {
        std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (!file) {
            fs::remove(fresh, error);
            return false;
        }
    }
    const auto old = fs::status(target, error);
    if (fs::is_regular_file(old)) fs::permissions(fresh, old.permissions(), error);
    fs::rename(fresh, target, error);
    if (!error) return true;
    fs::remove(fresh, error);
    return false;
}

std::string ReadProfile(std::string_view section, std::string_view key,
                        const std::string& programPath) {
    try {
        return ProfileValue(ReadFile(FindFile(HostPath(programPath))), section, key);
    } catch (const Failure&) {
        return "";
    }
}

void WriteProfile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string& programPath) {
    const fs::path path = FindFile(HostPath(programPath));
    std::string text;
    try {
        text = ReadFile(path);
    } catch (const Failure& failure) {
        // A file that is there but can't be read must not be replaced by one that forgets it.
        if (failure.Number != Failure::FileNotFound) return;
    }
    const std::string changed = ProfileWith(text, section, key, value);
    if (changed != text) ReplaceFile(path, changed);
}

} // namespace tumbledeep
