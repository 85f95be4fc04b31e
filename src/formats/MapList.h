// A map list as a value: the names of maps in the order of play, and the search for the one behind
// a finished map. Opening list files and telling the player is in windows/flow/MapLists.cpp.
#pragma once

#include "formats/FieldInput.h"

#include <optional>
#include <vector>

namespace tumbledeep {

/// The records of a list's bytes, each the name of a map without its extension. An empty line is a
/// record with an empty name; only a file of no bytes, a byte order mark aside, has none.
std::vector<Record> ReadMapList(std::string bytes);

/// The result of a search for a finished map.
struct ListSearch {
    bool Found = false;              ///< true for an empty list too: it has no more levels
    std::optional<std::string> Next; ///< the name of the next map; none at the list's end
};
/// Looks in a list for the first record of exactly that name, letter case and all, and what stands
/// behind it. A list that repeats a name thus always goes on behind the first one. Nothing is kept
/// of what is read: a list may have millions of records.
ListSearch FindNext(FieldInput list, std::string_view name);

} // namespace tumbledeep
