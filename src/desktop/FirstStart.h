// The very first start plays the list that ships and needs no open dialog. Only settings are
// written here; the game's own start-up does the rest by them.
#pragma once

#include "host/GameFolders.h"

namespace tumbledeep {

class Platform;

/// With no settings file yet and a map list Default.TBL in the folders, writes the settings that
/// play the list from its first map. Does nothing otherwise.
void PrepareFirstStart(Platform& platform, const GameFolders& folders);

} // namespace tumbledeep
