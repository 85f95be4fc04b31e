// The very first start plays the list that ships and needs no open dialog. Only settings are
// written here; the game's own start-up does the rest by them.
#pragma once

#include <filesystem>

namespace tumbledeep {

class Platform;

/// With no settings file yet and a map list Default.TBL in the platform's directory, writes the
/// settings that play the list from its first map. Does nothing otherwise.
void PrepareFirstStart(Platform& platform, const std::filesystem::path& directory);

} // namespace tumbledeep
