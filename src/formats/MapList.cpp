// How the bytes of a list become names, and how a finished map is searched for. Lists are cut into
// records by FieldInput, as maps are.
#include "formats/MapList.h"

#include <algorithm>
#include <utility>

namespace tumbledeep {

std::vector<Record> ReadMapList(std::string bytes) { return ReadRecords(std::move(bytes)); }

ListSearch FindNext(const std::vector<Record>& list, std::string_view name) {
    if (list.empty()) return {true, std::nullopt};
    const auto found = std::find_if(list.begin(), list.end(),
                                    [name](const Record& record) { return record.Text == name; });
    if (found == list.end()) return {false, std::nullopt};
    const auto next = found + 1;
    return {true, next == list.end() ? std::nullopt : std::optional(next->Text)};
}

} // namespace tumbledeep
