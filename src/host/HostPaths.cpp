// How paths are turned, and how a name in another case is looked for.
#include "host/HostPaths.h"

#include "base/Text.h"
#include "formats/ProgramPath.h"

#include <algorithm>
#include <system_error>

namespace tumbledeep {

namespace fs = std::filesystem;

fs::path HostPath(std::string_view programPath) {
    // "z:" is the same drive as "Z:".
    const bool fromRoot = SameButCase(programPath.substr(0, HostDrive.size()), HostDrive);
    if (HasDrive(programPath) && !fromRoot) return {};
    // The host would read a NUL as the name's end, and so find another file.
    if (programPath.find('\0') != std::string_view::npos) return {};
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
    if (path.empty() || fs::exists(path, error)) return path;
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

} // namespace tumbledeep
