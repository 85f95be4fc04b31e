// Counting, measuring, and a minute of play without a hand on the keys.
#include "map/info/MapInfo.h"

#include "formats/MapText.h"
#include "map/LoadSource.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

/// FactoryTick comes so often; see the clock's table.
constexpr int FactoryMilliseconds = 100;

/// A whole number that an int can hold, whatever a map says.
int Held(float number) {
    constexpr float most = 1e9F;
    return static_cast<int>(std::clamp(number, -most, most));
}

/// The cells that a board with that edge shows, begun ones too. The last pixel is overlap.
int CellsTo(float edge) {
    return std::max(0, Held(std::ceil((edge - (SpriteSize - Pitch)) / Pitch)));
}

FactoryInfo InfoOf(const Sprite& sprite, std::string_view tag) {
    FactoryInfo info{Held(RoundToEven(GridPlace(sprite.Left))),
                     Held(RoundToEven(GridPlace(sprite.Top))),
                     std::string(tag),
                     {}};
    info.Made = MadeBy(tag);
    if (info.Made) info.Every = (ReadRecipe(tag)->Rest + 1) * FactoryMilliseconds;
    return info;
}

void TakeLines(MapInfo& info, const std::vector<Record>& lines) {
    for (const Record& record : lines) {
        const MapLine line = ReadMapLine(record);
        if (line.What == MapLine::Is::Title) info.Titles.push_back(line.Text);
        if (line.What == MapLine::Is::Object)
            ++info.Counts.at(static_cast<std::size_t>(line.Which));
    }
}

void TakeBoard(MapInfo& info, const Board& board) {
    const MapEdges edges = board.MeasureMap();
    info.Columns = CellsTo(edges.MapRight);
    info.Rows = CellsTo(edges.MapBottom);
    const Pool& factories = board.Pools[Kind::Factory];
    for (const int factory : factories.InTurn()) {
        info.Factories.push_back(InfoOf(factories[factory], factories.TagText(factory)));
    }
}

void PlayMinute(MapInfo& info, Board& board) {
    while (info.End == Outcome::Running && info.Ticks < MinuteTicks) {
        info.Times.TickBegins();
        info.End = board.Tick({});
        info.Times.TickEnds(++info.Ticks);
    }
}

} // namespace

MapInfo StudyMap(const std::string& name) {
    MapInfo info;
    info.Name = name;
    const MapSource source = ReadMapSource(name);
    Board board = LoadSource(source);
    info.Times.LoadEnds();
    TakeLines(info, source.Lines);
    TakeBoard(info, board);
    PlayMinute(info, board);
    return info;
}

} // namespace tumbledeep
