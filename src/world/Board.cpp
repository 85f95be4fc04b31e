// Comparison and hash of boards: all of the state counts, numbers by their bits. The routines of a
// board are in rules/.
#include "world/Board.h"

#include "base/Hash.h"

#include <bit>
#include <tuple>
#include <utility>

namespace tumbledeep {

namespace {

template <std::size_t... Indexes>
std::array<Pool, PoolCount> TemplatePools(std::index_sequence<Indexes...> /*all*/) {
    return {Pool(PoolKinds()[Indexes])...};
}

/// The plain counters and switches. Fractional numbers go by their bits, which tell the two zeros
/// apart.
auto Counters(const Board& board) {
    return std::tuple(
        board.Interval100Timer.Enabled, board.TickCount, std::bit_cast<std::uint32_t>(board.YouCol),
        std::bit_cast<std::uint64_t>(board.YouRow), board.GemTotal, board.GemsLeft,
        board.GemsShown.has_value(), board.GemsShown.value_or(0), board.YouDead, board.MoveReady);
}

} // namespace

PoolSet::PoolSet() : pools(TemplatePools(std::make_index_sequence<PoolCount>())) {}

bool operator==(const Board& a, const Board& b) {
    return Counters(a) == Counters(b) && a.You == b.You && a.Area == b.Area &&
           a.FactoryCount == b.FactoryCount && a.random == b.random && a.Pools == b.Pools;
}

std::uint64_t Board::HashValue() const {
    Hash hash;
    std::apply([&hash](auto... counters) { (hash.Add(counters), ...); }, Counters(*this));
    hash.Add(You.Left);
    hash.Add(You.Top);
    hash.Add(random.LastSeed());
    hash.Add(random.Draws());
    for (const std::int16_t counter : FactoryCount) hash.Add(counter);
    // How much of the grid is kept depends on the past; empty cells say nothing.
    for (int row = 0; row < Area.UsedRows(); ++row) {
        for (int col = 0; col < GridSize; ++col) {
            const Kind kind = Area(col, row);
            if (kind == Kind::Empty) continue;
            hash.Add((row * GridSize + col) * static_cast<int>(KindCount) + static_cast<int>(kind));
        }
    }
    for (const KindRow& row : PoolKinds()) Pools[row.Which].AddTo(hash);
    return hash.Value();
}

} // namespace tumbledeep
