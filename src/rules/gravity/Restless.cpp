// The search for the next sprite that is not at rest. It is the one loop that goes over tens of
// thousands of sprites in vain, so it reads the numbers of cells and the kept part of the grid as
// they lie in memory.
#include "rules/gravity/Restless.h"

namespace tumbledeep {

namespace {

/// What a sprite can do on top of a kind.
enum class On : std::uint8_t { Acts, Rolls, Rests };

constexpr std::array<On, KindCount> Ground = [] {
    std::array<On, KindCount> ground{};
    ground.fill(On::Rests);
    for (const Kind kind : {Kind::Empty, Kind::You})
        ground.at(static_cast<std::size_t>(kind)) = On::Acts;
    for (const Kind kind : {Kind::Gem1Type, Kind::RoundRock, Kind::MovingMineT}) {
        ground.at(static_cast<std::size_t>(kind)) = On::Rolls;
    }
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
        const On ground = Ground[static_cast<std::size_t>(kept[cell + below])];
        if (ground == On::Rests) continue;
        if (ground == On::Acts || kept[cell + aside] == Kind::Empty) break;
    }
    return static_cast<int>(index);
}

} // namespace tumbledeep
