// What falls and rolls: rocks and T mines by the ten thousand, all at once.
#include "worst/WorstMap.h"

namespace tumbledeep {

namespace {

/// Three rows, over and over: rocks, nothing, mines that stand still.
Board RocksOn(const char* mines, const char* rocks = "O") {
    return BoardOf({.Picture = {rocks, " ", mines}});
}

Board RocksOnT() { return BoardOf({.Picture = {"O", " ", "T", "#"}}); }

/// Three rows, over and over: T mines, nothing, what they land on.
Board LandingT(const char* ground, int cols = WidestField, int rows = WidestField) {
    return BoardOf({.Picture = {"T", " ", ground}, .Cols = cols, .Rows = rows});
}

Board LandingTOnT(int cols) { return BoardOf({.Picture = {"T", " "}, .Cols = cols}); }

/// The upper part of the field, full of what falls all together.
Board FallingPile(const char* kind) {
    return BoardOf({.Picture = {kind},
                    .Rows = RowsOfAPool,
                    .FreeRows = WidestField - RowsOfAPool,
                    .LowestFirst = true});
}

/// Columns with a free one beside each: all but the lowest roll to and fro for ever, as the side is
/// drawn.
Board Rolling(const char* kind) {
    return BoardOf({.Picture = {std::string(kind) + ' '}, .Rows = 2 * RowsOfAPool});
}

Board RestingRocks() { return BoardOf({.Picture = {"O"}, .Rows = RowsOfAPool}); }

Board RainOfT() { return BoardOf({.Picture = {"T", " ", " "}, .LowestFirst = true}); }

constexpr WorstMap FallingList[] = {
    {"Falling/rocks", [] { return FallingPile("O"); }, WholeCycle},
    {"Falling/gems", [] { return FallingPile("*"); }, WholeCycle},
    {"Falling/T, the lowest row landing", RainOfT, WholeCycle},
    {"Rolling/rocks", [] { return Rolling("O"); }, WholeCycle},
    {"Rolling/gems", [] { return Rolling("*"); }, WholeCycle},
    {"Resting/rocks", RestingRocks, WholeCycle},

    {"LandingT/dirt", [] { return LandingT("."); }, WholeCycle},
    {"LandingT/dirt, tall", [] { return LandingT(".", RowsOfAPool); }, WholeCycle},
    {"LandingT/dirt, wide", [] { return LandingT(".", WidestField, RowsOfAPool); }, WholeCycle},
    {"LandingT/rocks", [] { return LandingT("O"); }, WholeCycle},
    {"LandingT/rocks, tall", [] { return LandingT("O", RowsOfAPool); }, WholeCycle},
    {"LandingT/rocks, wide", [] { return LandingT("O", WidestField, RowsOfAPool); }, WholeCycle},
    {"LandingT/walls", [] { return LandingT("#"); }, WholeCycle},
    {"LandingT/one another", [] { return LandingTOnT(WidestField); }, WholeCycle},
    {"LandingT/one another, tall", [] { return LandingTOnT(RowsOfAPool); }, WholeCycle},
    {"LandingT/mines of each kind", [] { return LandingT("LRFPQ"); }, WholeCycle},

    {"RocksOn/T", RocksOnT, WholeCycle},
    {"RocksOn/L", [] { return RocksOn("L"); }, WholeCycle},
    {"RocksOn/R", [] { return RocksOn("R"); }, WholeCycle},
    {"RocksOn/FL", [] { return RocksOn("F"); }, WholeCycle},
    {"RocksOn/P", [] { return RocksOn("P"); }, WholeCycle},
    {"RocksOn/PP", [] { return RocksOn("Q"); }, WholeCycle},
    // The mines beside those that are hit blow up in the same tick.
    {"RocksOn/every third P", [] { return RocksOn("P", "O  "); }, WholeCycle},
    {"RocksOn/five kinds", [] { return RocksOn("PLRFQ"); }, WholeCycle},
};

} // namespace

std::span<const WorstMap> FallingMaps() { return FallingList; }

} // namespace tumbledeep
