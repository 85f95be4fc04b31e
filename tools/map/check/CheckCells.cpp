// Objects that share a cell. One finding for each cell, however many stand there.
#include "map/check/Checks.h"

#include <map>

namespace tumbledeep {

namespace {

struct Crowd {
    const MapObject* First = nullptr;
    const MapObject* Second = nullptr;
    int Count = 0;
    int Factories = 0;
    bool HasGem = false;
};

/// The crowds by the number of their cell: by rows, then by columns.
std::map<unsigned, Crowd> Crowds(const CheckedMap& map) {
    std::map<unsigned, Crowd> crowds;
    for (const MapObject& object : map.Objects) {
        if (!object.At().InGrid()) continue;
        Crowd& crowd = crowds[object.At().Number()];
        if (crowd.First == nullptr) {
            crowd.First = &object;
        } else if (crowd.Second == nullptr) {
            crowd.Second = &object;
        }
        ++crowd.Count;
        if (object.Which == Kind::Factory) ++crowd.Factories;
        if (object.Which == Kind::Gem1Type) crowd.HasGem = true;
    }
    return crowds;
}

bool AreSame(const MapObject& a, const MapObject& b) {
    return a.Which == b.Which && a.Top == b.Top && a.Left == b.Left && a.Tag == b.Tag;
}

Finding CrowdFinding(const CheckedMap& map, const Crowd& crowd) {
    const MapObject& first = *crowd.First;
    const MapObject& second = *crowd.Second;
    const std::string firstLine = std::to_string(first.Line);
    if (crowd.Count == 2 && AreSame(first, second)) {
        return Warning(second.Line,
                       {"the same ", NameOf(second.Which), " stands in line ", firstLine, " too"},
                       {"take one of the two lines away"});
    }
    const Kind owner = map.Start.Area(first.At());
    std::string reads =
        owner == Kind::Empty ? "is empty for the rules" : Joined({"counts as ", NameOf(owner)});
    if (crowd.HasGem && owner != Kind::Gem1Type) reads += " until a key brings back the gem";
    const std::string who =
        crowd.Count == 2 ? Joined({"the ", NameOf(second.Which), " shares its cell with the ",
                                   NameOf(first.Which), " of line ", firstLine})
                         : Joined({std::to_string(crowd.Count),
                                   " objects share one cell, the first in line ", firstLine});
    return Warning(second.Line, {who, ", and the cell ", reads},
                   {"leave one of them in ", PlaceText(first.At())});
}

} // namespace

Findings CheckCells(const CheckedMap& map) {
    Findings found;
    for (const auto& [cell, crowd] : Crowds(map)) {
        // A factory marks no cell: one with something on it is at ease.
        if (crowd.Count < 2 || (crowd.Count == 2 && crowd.Factories == 1)) continue;
        found.push_back(CrowdFinding(map, crowd));
    }
    return found;
}

} // namespace tumbledeep
