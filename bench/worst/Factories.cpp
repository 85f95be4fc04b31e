// Factories without a rest: their turn comes every ten ticks, and each tries to make something. A
// product that is a new sprite does not mark its cell, so they go on while the pool has room, and
// look for a hidden sprite in vain when it has none.
#include "worst/WorstMap.h"

namespace tumbledeep {

namespace {

/// Close together, with room below for what falls and walks.
Board Packed(const char* recipe) {
    return BoardOf({.Picture = {"f"},
                    .Rows = RowsOfAPool,
                    .FreeRows = WidestField - RowsOfAPool,
                    .Recipe = recipe});
}

/// All in one cell but the first, which takes the template: a sprite used again marks its cell, and
/// the others would make nothing.
Board InOneCell(const char* recipe) {
    const Object factory{"factory", recipe};
    return LoadMap(
        Endless + LineOf(factory, At(20), At(20)) + Stack(factory, At(10), At(10), Full - 1), 1);
}

/// Bangs come and go again beside sprites that no blast finds, as these stand aside.
Board BangsAmongMines(float aside) { return BoardOf({.Picture = {"f.", "LP"}, .Aside = aside}); }

constexpr WorstMap FactoryList[] = {
    {"Factories/dirt", [] { return Packed("0:dirt"); }, WholeCycle},
    {"Factories/harddirt", [] { return Packed("0:harddirt"); }, WholeCycle},
    {"Factories/gem1type", [] { return Packed("0:gem1type"); }, WholeCycle},
    {"Factories/roundrock", [] { return Packed("0:roundrock"); }, WholeCycle},
    {"Factories/movingmineT", [] { return Packed("0:movingmineT"); }, WholeCycle},
    {"Factories/movingmineL", [] { return Packed("0:movingmineL"); }, WholeCycle},
    {"Factories/movingmineR", [] { return Packed("0:movingmineR"); }, WholeCycle},
    {"Factories/movingmineFL", [] { return Packed("0:movingmineFL"); }, WholeCycle},
    {"Factories/movingmineP", [] { return Packed("0:movingmineP"); }, WholeCycle},
    {"Factories/movingminePP", [] { return Packed("0:movingminePP"); }, WholeCycle},
    {"Factories/bang", [] { return Packed("0:bang"); }, WholeCycle},
    {"Factories/unknown kind", [] { return Packed("0:movingmineX"); }, WholeCycle},
    {"Factories/dirt, all in one cell", [] { return InOneCell("0:dirt"); }, WholeCycle},
    {"Factories/bang, all in one cell", [] { return InOneCell("0:bang"); }, WholeCycle},
    {"Factories/bang among dirt and mines", [] { return BangsAmongMines(0); }, WholeCycle},
    {"Factories/bang among dirt and mines 7 twips off", [] { return BangsAmongMines(7); },
     WholeCycle},
};

} // namespace

std::span<const WorstMap> FactoryMaps() { return FactoryList; }

} // namespace tumbledeep
