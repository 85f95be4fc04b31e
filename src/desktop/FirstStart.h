// The very first start plays the shipped list and needs no open dialog.
#pragma once

#include <filesystem>

namespace tumbledeep {

/// With no settings file yet and a map list Default.TBL in the directory, writes the settings that
/// play the list from its first map. Does nothing otherwise.
void PrepareFirstStart(const std::filesystem::path& directory);

} // namespace tumbledeep
