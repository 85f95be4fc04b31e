// Tens of thousands of sprites in one cell. A look-up in a place where many stand, or nearly stand,
// takes long if it passes each of them, and there may be as many look-ups as sprites.
#include "worst/WorstMap.h"

#include <array>
#include <initializer_list>

namespace tumbledeep {

namespace {

constexpr int Middle = 10; ///< column and row of the cell in which it happens

Object Mine(Kind kind) {
    return {std::string(KindText(kind)), kind == Kind::MovingMineT ? "" : "none"};
}

Object Plain(Kind kind) { return {std::string(KindText(kind)), ""}; }

Board LoadEndless(const std::string& map) { return LoadMap(Endless + map, 1); }

/// A kind for each cell round the middle; the T mines and the rocks stand on others.
struct Neighbour {
    Object What;
    int Col;
    int Row;
};

std::array<Neighbour, 8> Neighbours() {
    return {{{Mine(Kind::MovingMineT), -1, -1},
             {Plain(Kind::Dirt), 0, -1},
             {Plain(Kind::RoundRock), 1, -1},
             {Mine(Kind::MovingMineL), -1, 0},
             {Mine(Kind::MovingMineR), 1, 0},
             {Mine(Kind::MovingMineFL), -1, 1},
             {Mine(Kind::MovingMineP), 0, 1},
             {Mine(Kind::MovingMinePP), 1, 1}}};
}

/// A full stack on each of the eight cells round the middle, so many twips to the right of it.
std::string EightStacks(float aside) {
    std::string map;
    for (const auto& [what, col, row] : Neighbours()) {
        map += Stack(what, At(Middle + col) + aside, At(Middle + row));
    }
    return map;
}

/// A full stack of Bangs in the middle.
Board WithBangs(Board board) {
    board.Stamp(Kind::MovingMinePP);
    while (board.Pools[Kind::Bang].Count() <= Full) AddBang(board, At(Middle), At(Middle));
    return board;
}

/// Every stack but its last sprite is hidden, and that one stands aside and keeps the mark.
Board HiddenStacks() {
    std::string map;
    for (const auto& [what, col, row] : Neighbours()) {
        map += Stack(what, At(Middle + col), At(Middle + row), Full - 1);
        map += LineOf(what, At(Middle + col) + 7, At(Middle + row));
    }
    Board board = LoadEndless(map);
    for (const Neighbour& neighbour : Neighbours()) {
        Pool& pool = board.Pools[*KindNamed(neighbour.What.Keyword)];
        for (int i = 1; i < Full; ++i) pool.Hide(i);
    }
    return WithBangs(std::move(board));
}

/// As many sprites, each in a place of its own: evenly spread over `width` twips from `from` on, in
/// no order.
std::string Spread(const Object& what, float from, float width, float top, int count = Full) {
    std::string map;
    for (int i = 0; i < count; ++i) {
        const int scattered = i * 7919 % count;
        const float part = static_cast<float>(scattered) / static_cast<float>(count);
        map += LineOf(what, from + width * part, top);
    }
    return map;
}

/// Spread mines below a full stack of Bangs, near the left edge, where single precision has many
/// places in a twip.
Board BangsAboveSpread(float from, float width) {
    Board board = LoadEndless(Spread(Mine(Kind::MovingMineP), from, width, At(Middle + 1)));
    while (board.Pools[Kind::Bang].Count() <= Full) AddBang(board, At(0), At(Middle));
    return board;
}

/// A stack of Bangs, or spread ones, and spread sprites on each of the eight cells round them, all
/// `aside` or a little more from the places that the blasts look at.
Board BangsAmongSpread(float aside, float bangWidth) {
    std::string map;
    for (const auto& [what, col, row] : Neighbours()) {
        map += Spread(what, At(1 + col) + aside, 0.9F, At(Middle + row));
    }
    Board board = LoadEndless(map);
    board.Stamp(Kind::MovingMinePP);
    const Pool& bangs = board.Pools[Kind::Bang];
    for (int i = 0; bangs.Count() <= Full; ++i) {
        const float part = static_cast<float>(i * 7919 % Full) / static_cast<float>(Full);
        AddBang(board, At(1) + bangWidth * part, At(Middle));
    }
    return board;
}

/// One blast beside stacks of mines of some kinds.
Board Blown(std::initializer_list<Kind> kinds) {
    std::string map;
    for (const auto& [what, col, row] : Neighbours()) {
        for (const Kind kind : kinds) {
            if (what.Keyword != KindText(kind)) continue;
            map += Stack(what, At(Middle + col), At(Middle + row));
        }
    }
    Board board = LoadEndless(map);
    board.Stamp(Kind::MovingMinePP);
    AddBang(board, At(Middle), At(Middle));
    return board;
}

/// A rock falls onto a stack of mines of which all but the last are hidden, and hits them all.
Board HiddenStackHit() {
    Board board = LoadEndless(Stack(Mine(Kind::MovingMineP), At(Middle), At(Middle)) +
                              LineOf(Plain(Kind::RoundRock), At(Middle), At(Middle - 2)));
    for (int i = 1; i < Full; ++i) board.Pools[Kind::MovingMineP].Hide(i);
    return board;
}

/// Rocks at 179.9 belong to one column and mines at 180.1 to the next, less than a twip apart. The
/// mine at 0 marks the cell that the rocks land on, and no hit takes that mark away: each rock of
/// the stack falls and hits each mine of the stack, in one tick.
Board NearTie(Kind kind) {
    const float row = At(Middle + 1);
    return LoadEndless(LineOf(Mine(kind), 0, row) + Stack(Mine(kind), 180.1F, row, Full - 1) +
                       Stack(Plain(Kind::RoundRock), 179.9F, row - 2 * Pitch));
}

/// The same, with all rocks and mines in places of their own.
Board NearTieSpread() {
    const float row = At(Middle + 1);
    const Object mine = Mine(Kind::MovingMineP);
    return LoadEndless(LineOf(mine, 0, row) + Spread(mine, 180.1F, 0.4F, row, Full - 1) +
                       Spread(Plain(Kind::RoundRock), 179.6F, 0.3F, row - 2 * Pitch));
}

constexpr WorstMap StackList[] = {
    {"Stack/P blown", [] { return Blown({Kind::MovingMineP}); }, 24},
    {"Stack/dirt blown", [] { return Blown({Kind::Dirt}); }, 24},
    {"Stack/five kinds blown",
     [] {
         return Blown({Kind::MovingMineT, Kind::MovingMineL, Kind::MovingMineR, Kind::MovingMineFL,
                       Kind::MovingMineP});
     },
     24},
    {"Stack/hidden P hit", HiddenStackHit, 24},
    {"BangsBeside/stacks", [] { return WithBangs(LoadEndless(EightStacks(0))); }, 24},
    {"BangsBeside/stacks 7 twips off", [] { return WithBangs(LoadEndless(EightStacks(7))); }, 24},
    // The nearest that a look-up passes over.
    {"BangsBeside/stacks 1 twip off", [] { return WithBangs(LoadEndless(EightStacks(1))); }, 24},
    {"BangsBeside/hidden stacks", HiddenStacks, 24},
    {"BangsBeside/spread within a twip", [] { return BangsAboveSpread(-0.9F, 1.8F); }, 24},
    {"BangsBeside/spread from 1 to 2 twips", [] { return BangsAboveSpread(1, 1); }, 24},
    {"BangsAmong/spread beside them", [] { return BangsAmongSpread(2, 0); }, 24},
    {"BangsAmong/spread, beside spread", [] { return BangsAmongSpread(1.9F, 0.9F); }, 24},
    {"BangsAmong/spread, some hit", [] { return BangsAmongSpread(1, 0.9F); }, 24},
    {"BangsAmong/spread, all hit", [] { return BangsAmongSpread(0, 0.9F); }, 24},
    {"NearTie/P", [] { return NearTie(Kind::MovingMineP); }, 12},
    {"NearTie/L", [] { return NearTie(Kind::MovingMineL); }, 12},
    {"NearTie/P, spread", NearTieSpread, 12},
};

} // namespace

std::span<const WorstMap> StackMaps() { return StackList; }

} // namespace tumbledeep
