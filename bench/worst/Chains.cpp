// Chains of mines that stand close together, from the first blast to the last. A blast makes a Bang
// of each mine: one that is a new sprite has its turn in the next call, one in a hidden sprite
// further on has it in the same, but what that one blows up has not, as the highest hidden sprite
// is used first. So a chain goes on by one or two cells in six ticks, and no tick has more of it
// than the Bangs that stand there and what they blow up: all mines, where every third cell has one.
#include "worst/WorstMap.h"

#include <array>

namespace tumbledeep {

namespace {

constexpr int Side = 181; ///< of a square that all mines of one pool fill

/// Each mine has four other kinds round it.
const std::vector<std::string> FiveKinds{"TLRFP", "RFPTL", "PTLRF", "LRFPT", "FPTLR"};

enum class From { Corner, Middle };

/// Whether the pool of Bangs has its full number of hidden ones, as after an earlier chain.
enum class Bangs { New, Hidden };

void FillWithHidden(Pool& pool) {
    while (pool.Count() <= Full) pool.Add();
}

Board Chain(const Pattern& pattern, From from, Bangs bangs = Bangs::New) {
    Board board = BoardOf(pattern);
    if (bangs == Bangs::Hidden) FillWithHidden(board.Pools[Kind::Bang]);
    const bool middle = from == From::Middle;
    AddBang(board, At(middle ? pattern.Cols / 2 : 1), At(middle ? pattern.Rows / 2 : 1));
    return board;
}

Board Square(const char* kind, From from, Bangs bangs = Bangs::New) {
    return Chain({.Picture = {kind}, .Cols = Side, .Rows = Side}, from, bangs);
}

/// A visible Bang in every third cell both ways; the rest of the pool are hidden ones.
Board Seeded(const Pattern& pattern) {
    Board board = BoardOf(pattern);
    for (int row = 2; row <= pattern.Rows; row += 3) {
        for (int col = 2; col <= pattern.Cols; col += 3) AddBang(board, At(col), At(row));
    }
    FillWithHidden(board.Pools[Kind::Bang]);
    return board;
}

Board SeededDirtAndRocks() { return Seeded({.Picture = {".", "O", "."}, .Rows = 2 * RowsOfAPool}); }

/// A full pool of visible Bangs, of which nearly each blows up two mines: it is out of hidden
/// sprites, gets one, and is out of them again, 30,000 times.
Board TwoMinesToABang() {
    const Pattern pattern{.Picture = {" PL"}, .Cols = 297};
    Board board = BoardOf(pattern);
    for (int row = 1; row <= pattern.Rows; ++row) {
        for (int col = 1; col <= pattern.Cols; col += 3) AddBang(board, At(col), At(row));
    }
    constexpr float offTheGrid = -1e6F;
    while (board.Pools[Kind::Bang].Count() <= Full) AddBang(board, offTheGrid, offTheGrid);
    return board;
}

constexpr int AcrossASquare =
    1030; ///< ticks of a chain from corner to corner; half of them from the middle
constexpr int AcrossTheField = 1700;

constexpr WorstMap ChainList[] = {
    {"Chain/T, corner", [] { return Square("T", From::Corner); }, AcrossASquare},
    {"Chain/L, corner", [] { return Square("L", From::Corner); }, AcrossASquare},
    {"Chain/P, corner", [] { return Square("P", From::Corner); }, AcrossASquare},
    {"Chain/P, middle", [] { return Square("P", From::Middle); }, AcrossASquare / 2},
    {"Chain/P, corner, hidden Bangs", [] { return Square("P", From::Corner, Bangs::Hidden); },
     AcrossASquare},
    {"Chain/P, middle, hidden Bangs", [] { return Square("P", From::Middle, Bangs::Hidden); },
     AcrossASquare / 2},
    {"Chain/P, tall", [] { return Chain({.Picture = {"P"}, .Cols = RowsOfAPool}, From::Middle); },
     AcrossTheField / 2},
    {"Chain/P, wide", [] { return Chain({.Picture = {"P"}, .Rows = RowsOfAPool}, From::Middle); },
     AcrossTheField / 2},
    {"Chain/five kinds, corner", [] { return Chain({.Picture = FiveKinds}, From::Corner); },
     AcrossTheField},
    {"Chain/five kinds, middle", [] { return Chain({.Picture = FiveKinds}, From::Middle); },
     AcrossTheField / 2},
    {"Chain/five kinds, middle, hidden Bangs",
     [] { return Chain({.Picture = FiveKinds}, From::Middle, Bangs::Hidden); }, AcrossTheField / 2},
    {"Seeded/P", [] { return Seeded({.Picture = {"P"}, .Cols = Side, .Rows = Side}); }, WholeCycle},
    {"Seeded/five kinds", [] { return Seeded({.Picture = FiveKinds}); }, WholeCycle},
    {"Seeded/dirt and rocks", SeededDirtAndRocks, WholeCycle},
    {"Seeded/two mines to a Bang", TwoMinesToABang, WholeCycle},
};

} // namespace

std::span<const WorstMap> ChainMaps() { return ChainList; }

} // namespace tumbledeep
