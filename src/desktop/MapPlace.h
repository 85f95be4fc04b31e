// What the right end of the status bar tells: the map, its place in the list and how the view
// follows.
#pragma once

#include "windows/frmMain.h"

#include <string>

namespace tumbledeep {

/// "NAME, 3 of 46 in LIST", with "not in LIST" where the list in use does not name the running map;
/// "" without a map. Reads the list by `files`.
std::string MapInList(const frmMain& game, Platform& files);

/// How the view follows the player, by the game's own names; "" if it does not.
std::string ViewName(const frmDocument& board);

} // namespace tumbledeep
