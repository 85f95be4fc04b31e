// How a board is made of a map that may be faulty: lines that would end the loading are left out.
#include "map/check/CheckedMap.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

/// Of several players the last one counts.
void DropEarlierPlayers(std::vector<MapObject>& objects) {
    auto players = std::ranges::count(objects, Kind::You, &MapObject::Which);
    std::erase_if(objects, [&](const MapObject& object) {
        return object.Which == Kind::You && players-- > 1;
    });
}

void Take(CheckedMap& map, const MapLine& line) {
    if (line.What != MapLine::Is::Object) return;
    const bool isPlayer = line.Which == Kind::You;
    if (isPlayer) map.PlayerLines.push_back(line.Line);
    if (!isPlayer && map.Start.Pools[line.Which].Full()) {
        int& full = map.Full.at(static_cast<std::size_t>(line.Which));
        if (full == 0) full = line.Line;
        return;
    }
    if (line.Fault) return;
    PutOnBoard(map.Start, line);
    map.Objects.push_back(
        {line.Line, map.Lines.size() - 1, line.Which, *line.Top, *line.Left, line.Text});
}

} // namespace

bool MapObject::OnPitch() const {
    return std::fmod(Top, Pitch) == 0 && std::fmod(Left, Pitch) == 0;
}

CheckedMap ReadChecked(const MapSource& source) {
    CheckedMap map{source, {}, {}, {}, {}, {}, {}};
    if (source.IsPicture) {
        map.Ends.resize(source.Lines.size());
    } else {
        map.Ends = EndsOf(source.Bytes, source.Lines);
    }
    map.Lines.reserve(source.Lines.size());
    for (const Record& record : source.Lines) {
        map.Lines.push_back(ReadMapLine(record));
        Take(map, map.Lines.back());
    }
    DropEarlierPlayers(map.Objects);
    map.Start.ResetArea();
    map.Start.ResetStart(1);
    return map;
}

bool IsDrawn(Cell cell) { return cell.InGrid() && cell.Col() > 0 && cell.Row() > 0; }

std::string PlaceText(Cell cell) {
    const int pitch = static_cast<int>(Pitch);
    std::string text = "column ";
    text += std::to_string(cell.Col()) + ", row " + std::to_string(cell.Row());
    text += " (Top " + std::to_string((cell.Row() - 1) * pitch);
    text += ", Left " + std::to_string((cell.Col() - 1) * pitch) + ")";
    return text;
}

} // namespace tumbledeep
