// Players, gems, and where objects stand: on the pitch of cells, and on the part of the board that
// is drawn.
#include "map/check/Checks.h"

#include <algorithm>

namespace tumbledeep {

namespace {

/// Numbers that name a cell by column and row, as it seems.
bool IsLikeACell(const MapObject& object) {
    constexpr float most = 300;
    return object.Top < most && object.Left < most && object.Top == RoundToEven(object.Top) &&
           object.Left == RoundToEven(object.Left);
}

void CheckPlace(Findings& found, const MapObject& object) {
    const std::string_view name = NameOf(object.Which);
    const Cell cell = object.At();
    if (!cell.InGrid()) {
        found.push_back(Error(object.Line, {"the ", name, " stands outside the board"},
                              {"Top and Left go from 0 to 107640"}));
    } else if (!IsDrawn(cell)) {
        found.push_back(Warning(object.Line,
                                {"the ", name, " stands out of sight, in ", PlaceText(cell)},
                                {"what is drawn begins at Top 0 and Left 0"}));
    } else if (!object.OnPitch()) {
        found.push_back(Warning(object.Line, {"the ", name, " stands between two cells"},
                                {IsLikeACell(object) ? "numbers are twips, 360 to a cell; " : "",
                                 "the nearest is ", PlaceText(cell)}));
    }
}

} // namespace

Findings CheckPlaces(const CheckedMap& map) {
    Findings found;
    for (const MapObject& object : map.Objects) CheckPlace(found, object);
    for (std::size_t i = 0; i + 1 < map.PlayerLines.size(); ++i) {
        found.push_back(Warning(map.PlayerLines[i],
                                {"this player does not count, as there is one in line ",
                                 std::to_string(map.PlayerLines.back()), " too"},
                                {"leave one line for the player"}));
    }
    return found;
}

Findings CheckNeeds(const CheckedMap& map, const std::set<std::string_view>& lost) {
    Findings found;
    const bool isPicture = map.Source.IsPicture;
    if (map.PlayerLines.empty() && !lost.contains(KindText(Kind::You))) {
        found.push_back(Error(1, {"there is no player"},
                              {isPicture ? "draw a @ where the player starts"
                                         : "add a line such as \"you 360 360\""}));
    }
    if (map.Start.GemTotal == 1 && !lost.contains(KindText(Kind::Gem1Type))) {
        found.push_back(Error(
            1, {"there is no gem, so the map is won at once"},
            {isPicture ? "draw a * for each gem" : "add a line such as \"gem1type 360 720\""}));
    }
    return found;
}

} // namespace tumbledeep
