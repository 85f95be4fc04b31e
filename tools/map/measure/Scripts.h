// The scripts that belong to a map: they lie in the folder "solutions" beside it. "NAME.script"
// wins the map NAME, as does "NAME.2.script"; "NAME.bait.script" is a plausible plan that does not.
#pragma once

#include <filesystem>
#include <vector>

namespace tumbledeep {

struct MapScripts {
    std::vector<std::filesystem::path> Solutions;
    std::vector<std::filesystem::path> Baits;
};

/// Finds a map's scripts, both in the order of their names.
MapScripts ScriptsOf(const std::filesystem::path& map);

} // namespace tumbledeep
