// Full pools of mines that walk. Where each step is noted in an index of places, it must not matter
// how many stand in one place.
#include "worst/WorstMap.h"

namespace tumbledeep {

namespace {

/// Rows of mines with a free cell between two: all step to the right until they meet the wall.
Board March(const char* kind, float aside) {
    return BoardOf({.Picture = {std::string(kind) + ' '},
                    .Rows = 2 * RowsOfAPool,
                    .Tag = "R",
                    .Aside = aside});
}

/// Two cells within walls, half of the mines in each and heading for the other. In turn each finds
/// the other cell empty, as the one before it has just left it: all change places in one call.
Board ChangePlaces(Kind kind, float aside) {
    std::string map;
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 4; ++col) {
            if (row != 1 || col == 0 || col == 3) map += LineOf({"harddirt", ""}, At(col), At(row));
        }
    }
    const std::string keyword(KindText(kind));
    for (int i = 0; i < Full; ++i) {
        const bool first = i % 2 == 0;
        map += LineOf({keyword, first ? "R" : "L"}, At(first ? 1 : 2) + aside, At(1));
    }
    Board board = LoadMap(Endless + map, 1);
    // As if a mine had just walked out of the second cell.
    board.Area.Set(CellOf(board.Pools[kind][2]), Kind::Empty);
    return board;
}

constexpr WorstMap WalkingList[] = {
    {"March/L", [] { return March("L", 0); }, WholeCycle},
    {"March/R", [] { return March("R", 0); }, WholeCycle},
    {"March/FL", [] { return March("F", 0); }, WholeCycle},
    {"March/P", [] { return March("P", 0); }, WholeCycle},
    {"March/PP", [] { return March("Q", 0); }, WholeCycle},
    {"March/L, 7 twips off", [] { return March("L", 7); }, WholeCycle},
    {"March/P, 7 twips off", [] { return March("P", 7); }, WholeCycle},
    {"March/five kinds", [] { return BoardOf({.Picture = {"L R F P Q "}, .Tag = "R"}); },
     WholeCycle},
    {"ChangePlaces/L", [] { return ChangePlaces(Kind::MovingMineL, 0); }, WholeCycle},
    {"ChangePlaces/R", [] { return ChangePlaces(Kind::MovingMineR, 0); }, WholeCycle},
    {"ChangePlaces/FL", [] { return ChangePlaces(Kind::MovingMineFL, 0); }, WholeCycle},
    {"ChangePlaces/P", [] { return ChangePlaces(Kind::MovingMineP, 0); }, WholeCycle},
    {"ChangePlaces/PP", [] { return ChangePlaces(Kind::MovingMinePP, 0); }, WholeCycle},
    {"ChangePlaces/L, 7 twips off", [] { return ChangePlaces(Kind::MovingMineL, 7); }, WholeCycle},
};

} // namespace

std::span<const WorstMap> WalkingMaps() { return WalkingList; }

} // namespace tumbledeep
