// The few cuts of a file name that the header tells. Nothing here asks the host: a path is text,
// and whether a file is there is not looked at.
#include "formats/ProgramPath.h"

#include <algorithm>

namespace tumbledeep {

std::string getpath(std::string_view path) {
    return std::string(path.substr(0, path.rfind('\\') + 1));
}

std::string getfilename(std::string_view path) {
    return std::string(path.substr(path.rfind('\\') + 1));
}

std::string PathFrom(const std::string& directory, std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    if (HasDrive(path)) return path;
    return path.starts_with('\\') ? std::string(HostDrive) + path : directory + '\\' + path;
}

std::string WithoutExtension(std::string_view name) {
    constexpr std::size_t extension = 4;
    return std::string(name.substr(0, name.size() < extension ? 0 : name.size() - extension));
}

} // namespace tumbledeep
