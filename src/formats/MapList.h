// A map list as a value: the names of maps in the order of play.
#pragma once

#include "formats/FieldInput.h"

#include <optional>
#include <vector>

namespace tumbledeep {

/// The records of a list, each the name of a map without its extension. An empty line is a record
/// with an empty name; a file of no bytes, a byte order mark aside, has none.
std::vector<Record> ReadMapList(std::string bytes);

/// What stands behind the first record of that very name.
struct ListSearch {
    bool Found = false;              ///< an empty list counts as found, with nothing behind
    std::optional<std::string> Next; ///< none at the list's end
};
ListSearch FindNext(const std::vector<Record>& list, std::string_view name);

} // namespace tumbledeep
