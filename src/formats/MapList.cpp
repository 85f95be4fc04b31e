// How the bytes of a list become names, and how a finished map is searched for. Lists are cut into
// records by FieldInput, as maps are.
#include "formats/MapList.h"

#include <utility>

namespace tumbledeep {

std::vector<Record> ReadMapList(std::string bytes) { return ReadRecords(std::move(bytes)); }

ListSearch FindNext(FieldInput list, std::string_view name) {
    if (list.AtEnd()) return {true, std::nullopt};
    while (!list.AtEnd()) {
        if (list.Next().Text != name) continue;
        return {true, list.AtEnd() ? std::nullopt : std::optional(list.Next().Text)};
    }
    return {false, std::nullopt};
}

} // namespace tumbledeep
