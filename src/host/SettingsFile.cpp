// Reading, changing and replacing under one lock, and the rule about links.
#include "host/SettingsFile.h"

#include "base/Failure.h"
#include "formats/Profile.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"

#include <algorithm>
#include <system_error>

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

/// How many links in a row are followed, as many as Linux does.
constexpr int MostLinks = 40;

/// Whether a path lies in a folder or below it; both without links and dots.
bool LiesIn(const fs::path& folder, const fs::path& path) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first ==
           folder.end();
}

} // namespace

std::string ReadSettings(const std::string& programPath) {
    try {
        return ReadFile(FindFile(HostPath(programPath)));
    } catch (const Failure&) {
        return "";
    }
}

std::string ReadProfile(std::string_view section, std::string_view key,
                        const std::string& programPath) {
    return ProfileValue(ReadSettings(programPath), section, key);
}

fs::path WrittenFile(const fs::path& path) {
    std::error_code error;
    fs::path last = path;
    for (int links = 0; fs::is_symlink(fs::symlink_status(last, error)); ++links) {
        const fs::path next = fs::read_symlink(last, error);
        if (error || links == MostLinks) return path;
        last = last.parent_path() / next;
    }
    const fs::path folder = fs::canonical(path.parent_path(), error);
    const fs::path target = error ? path : fs::weakly_canonical(last, error);
    return !error && LiesIn(folder, target) ? target : path;
}

bool WriteProfile(std::string_view section, std::string_view key, std::string_view value,
                  const std::string& programPath) {
    const fs::path path = FindFile(HostPath(programPath));
    const fs::path target = WrittenFile(path);
    const FolderLock lock(target.parent_path());
    std::string text;
    try {
        text = ReadFile(path);
    } catch (const Failure& failure) {
        // A file that is there but can't be read must not be replaced by one that forgets it.
        if (failure.Number != Failure::FileNotFound) return false;
    }
    const std::string changed = ProfileWith(text, section, key, value);
    if (lock.Held()) RemoveLeftovers(target);
    return changed == text || (changed.size() <= LargestFile && ReplaceFile(target, changed));
}

} // namespace tumbledeep
