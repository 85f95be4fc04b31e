// What the player's keys set going: gems written anew at every key, and searches for what a step
// takes or pushes.
#include "worst/WorstMap.h"

namespace tumbledeep {

namespace {

constexpr int Corridor = 100; ///< cells

/// A corridor of that length, from column and row 1 on, with the player in its first cell and all
/// objects of a kind in the cells from `from` to `to`, the first ones in the last cell.
Board InCorridor(Heading way, const char* kind, int from, int to) {
    const bool level = !IsVertical(way);
    std::string map = std::string(Endless) + "you 360 360\n";
    const auto add = [&](const char* keyword, int along, int across) {
        map += LineOf({keyword, ""}, At(level ? along : across), At(level ? across : along));
    };
    for (int i = 0; i <= Corridor + 1; ++i) {
        add("harddirt", i, 0);
        add("harddirt", i, 2);
    }
    add("harddirt", 0, 1);
    add("harddirt", Corridor + 1, 1);
    const int endless = kind == KindText(Kind::Gem1Type) ? 1 : 0;
    for (int i = Full - endless; i-- > 0;) add(kind, from + i * (to - from + 1) / Full, 1);
    return LoadMap(map, 1);
}

Board Pushed(const char* kind) { return InCorridor(Heading::Right, kind, 2, 2); }

Board Taken(const char* kind) { return InCorridor(Heading::Right, kind, 2, 3); }

/// Dirt that has been dug away earlier: each step finds it in its place again.
Board HiddenDirt(Heading way, int to) {
    Board board = InCorridor(way, "dirt", 1, to);
    Pool& dirt = board.Pools[Kind::Dirt];
    for (int i = 1; i < dirt.Count(); ++i) dirt.Hide(i);
    board.Area = AreaGrid();
    board.Stamp(Kind::HardDirt);
    board.YouStart();
    return board;
}

Board Gems() { return BoardOf({.Picture = {"*"}, .Rows = RowsOfAPool}); }

Board Column() { return HiddenDirt(Heading::Down, Corridor); }

constexpr WorstMap PlayerList[] = {
    {"Player/gems restamped", Gems, WholeCycle, "wasd"},
    {"Player/column of hidden dirt", Column, WholeCycle, "ssss"},
    {"Player/column of hidden dirt, up and down", Column, WholeCycle, "ssww"},
    {"Player/row of hidden dirt", [] { return HiddenDirt(Heading::Right, Corridor); }, WholeCycle,
     "d"},
    {"Player/two cells of hidden dirt", [] { return HiddenDirt(Heading::Right, 2); }, WholeCycle,
     "ad"},
    {"Player/dirt dug in two cells", [] { return Taken("dirt"); }, WholeCycle, "ad"},
    {"Player/gems taken in two cells", [] { return Taken("gem1type"); }, WholeCycle, "ad"},
    {"Player/rocks pushed at once", [] { return Pushed("roundrock"); }, WholeCycle, "d"},
    {"Player/T mines pushed at once", [] { return Pushed("movingmineT"); }, WholeCycle, "d"},
};

} // namespace

std::span<const WorstMap> PlayerMaps() { return PlayerList; }

} // namespace tumbledeep
