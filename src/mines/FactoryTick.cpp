// Factories bring out objects by their recipes for as long as their cell is free.
#include "board/frmDocument.h"

#include <limits>

namespace tumbledeep {

namespace {

/// A recipe: one digit for the rest, a separator that says nothing, the kind.
constexpr std::size_t KindStart = 2;

} // namespace

void frmDocument::FactoryTick() {
    const int count = Factory.Count();
    FactoryCount.resize(static_cast<std::size_t>(count));
    // Hidden ones count too and nothing resets them, so the counter stops at its limit.
    for (std::int16_t& counter : FactoryCount) {
        if (counter < std::numeric_limits<std::int16_t>::max()) ++counter;
    }
    for (PoolIndex = 0; PoolIndex < count; ++PoolIndex) {
        if (!Factory.Shown(PoolIndex)) continue;
        const PoolSprite factory = Factory[PoolIndex];
        const std::string_view recipe = factory.Tag;
        std::int16_t& counter = FactoryCount[static_cast<std::size_t>(PoolIndex)];
        const bool fits = recipe.size() >= KindStart && recipe[0] >= '0' && recipe[0] <= '9';
        if (fits && Area(Near(factory)) == Kind::Empty && recipe[0] - '0' < counter) {
            counter = 0;
            SpawnObject(recipe.substr(KindStart), factory.Left, factory.Top, TagOf(Heading::Down));
        }
        // What stands on the cell holds the counter at 0; a product made as a new sprite does not.
        if (Area(Near(factory)) != Kind::Empty) counter = 0;
    }
}

} // namespace tumbledeep
