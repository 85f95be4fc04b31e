// The search for the next sprite that is not at rest. It is the one loop that goes over tens of
// thousands of sprites in vain, so it reads the numbers of cells and the kept part of the grid as
// they lie in memory.
#include "rules/gravity/Restless.h"

namespace tumbledeep {

namespace {

/// What a sprite can do on top of a kind: 0 nothing, 1 roll off if there is room, 2 something in
/// any case.
constexpr std::array<std::uint8_t, KindCount> Ground = [] {
    std::array<std::uint8_t, KindCount> ground{};
    const auto on = [&](Kind kind) -> std::uint8_t& {
        return ground.at(static_cast<std::size_t>(kind));
    };
    on(Kind::Gem1Type) = on(Kind::RoundRock) = on(Kind::MovingMineT) = 1;
    on(Kind::Empty) = on(Kind::You) = 2;
    return ground;
}();

} // namespace

int Restless::Next(int from) const {
    const std::span<const unsigned> cells = pool.CellNumbers();
    const std::span<const Kind> kept = board.Area.Kept();
    const std::size_t below = Cell::RowLength;
    const std::size_t aside = way == ToRight ? below + 1 : below - 1;
    // From here on, a cell has no row below it that is kept.
    const std::size_t bottom = kept.size() > below ? kept.size() - below - 1 : 0;
    const auto last = static_cast<std::size_t>(count);
    auto index = static_cast<std::size_t>(from);
    for (; index < last; ++index) {
        const std::size_t cell = cells[index];
        if (cell >= bottom) {
            if (Pool::IsHiddenCell(cells[index])) continue;
            break;
        }
        // One question for all cases: which of them it is, no processor could guess.
        const int blocked = kept[cell + aside] == Kind::Empty ? 0 : 1;
        if (Ground[static_cast<std::size_t>(kept[cell + below])] > blocked) break;
    }
    return static_cast<int>(index);
}

} // namespace tumbledeep
