// Which checks a file gets, by what it is and how far it can be read.
#include "map/check/Checks.h"

#include <algorithm>

namespace tumbledeep {

namespace {

void Append(Findings& found, Findings more) {
    found.insert(found.end(), std::make_move_iterator(more.begin()),
                 std::make_move_iterator(more.end()));
}

Findings CheckMap(const std::string& name) {
    const MapSource source = ReadMapSource(name);
    const CheckedMap map = ReadChecked(source);
    Findings found;
    for (const auto check :
         {CheckLines, CheckKeywords, CheckCommas, CheckRecipes, CheckPlaces, CheckCells}) {
        Append(found, check(map));
    }
    if (!source.IsPicture) {
        Append(found, CheckQuotes(source.Lines, map.Ends));
        Append(found, CheckListed(name));
    }
    // Without some objects, walls would seem to have holes, and more of that kind.
    const auto lost = LostNames(map);
    const bool isSwallowed = !map.Ends.empty() && map.Ends.back().Open;
    if (!isSwallowed) Append(found, CheckNeeds(map, lost));
    if (lost.empty()) {
        Append(found, CheckWalls(map));
        Append(found, CheckReach(map));
        Append(found, CheckStart(map));
    }
    return found;
}

} // namespace

Findings CheckFile(const std::string& name) {
    const std::filesystem::path path(name);
    Findings found =
        HasExtension(path, ".TBL") ? CheckList(path.parent_path(), BytesOf(path)) : CheckMap(name);
    std::ranges::stable_sort(found, {}, &Finding::Line);
    // What is wrong with a mark of a picture is said once, however often that is drawn.
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

} // namespace tumbledeep
