// File names, taken apart.
#include "map/measure/Scripts.h"

#include "map/MapSource.h"

#include <algorithm>
#include <string>

namespace tumbledeep {

MapScripts ScriptsOf(const std::filesystem::path& map) {
    MapScripts scripts;
    const std::filesystem::path folder = map.parent_path() / "solutions";
    const std::string name = map.stem().string();
    std::error_code none;
    for (const auto& file : std::filesystem::directory_iterator(folder, none)) {
        const std::string stem = file.path().stem().string();
        if (!HasExtension(file.path(), ".script") || !stem.starts_with(name)) continue;
        const std::string rest = stem.substr(name.size());
        const bool isBait = rest.starts_with(".bait");
        if (!rest.empty() && rest.front() != '.') continue;
        (isBait ? scripts.Baits : scripts.Solutions).push_back(file.path());
    }
    std::sort(scripts.Solutions.begin(), scripts.Solutions.end());
    std::sort(scripts.Baits.begin(), scripts.Baits.end());
    return scripts;
}

} // namespace tumbledeep
