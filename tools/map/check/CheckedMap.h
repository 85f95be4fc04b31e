// A map as the checks see it: what each line says, the objects that the game can put on the board,
// and the board at the start. A source goes in; nothing is judged here.
#pragma once

#include "formats/LoadMap.h"
#include "map/MapSource.h"
#include "map/check/RecordEnds.h"

#include <array>
#include <string>
#include <vector>

namespace tumbledeep {

struct MapObject {
    int Line = 1;
    std::size_t Record = 0; ///< the index of its record
    Kind Which = Kind::Empty;
    float Top = 0;
    float Left = 0;
    std::string Tag;

    Cell At() const { return CellOf(*this); }
    /// On a cell, not between some.
    bool OnPitch() const;
};

struct CheckedMap {
    const MapSource& Source;
    std::vector<RecordEnd> Ends;       ///< of the records; plain line ends for a picture
    std::vector<MapLine> Lines;        ///< what the records say
    std::vector<MapObject> Objects;    ///< in their order; of several players the last one alone
    std::vector<int> PlayerLines;      ///< the lines for a player, unreadable ones too
    std::array<int, KindCount> Full{}; ///< by kind, the first line too many for its pool, or 0
    Board Start;                       ///< with all `Objects` on it

    bool IsTooMany(const MapLine& line) const {
        return line.What == MapLine::Is::Object &&
               Full.at(static_cast<std::size_t>(line.Which)) == line.Line;
    }
};

/// The source has to outlive the map.
CheckedMap ReadChecked(const MapSource& source);

/// The kind as a finding names it.
inline std::string_view NameOf(Kind kind) { return kind == Kind::You ? "player" : KindText(kind); }

/// Whether a cell is one that maps draw: columns and rows 1 to 300.
bool IsDrawn(Cell cell);

/// "column 3, row 2 (Top 360, Left 720)".
std::string PlaceText(Cell cell);

} // namespace tumbledeep
