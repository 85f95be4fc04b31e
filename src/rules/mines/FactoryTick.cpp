// Factories bring out objects by their recipes for as long as their cell is free.
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// What a factory makes, and how many calls it rests in between.
struct Product {
    Kind Made;
    int Rest;
};

/// A recipe: one digit for the rest, a separator that says nothing, the kind. None for a text that
/// is no recipe.
std::optional<Product> ReadRecipe(std::string_view recipe) {
    constexpr std::size_t kindStart = 2;
    if (recipe.size() < kindStart || recipe[0] < '0' || recipe[0] > '9') return std::nullopt;
    // A kind that nobody knows makes nothing, and the rest counts all the same.
    return Product{KindNamed(recipe.substr(kindStart)).value_or(Kind::Empty), recipe[0] - '0'};
}

bool CanBeMade(Kind kind) {
    return kind != Kind::Empty && kind != Kind::You && kind != Kind::Factory;
}

} // namespace

void Board::FactoryTick() {
    const Pool& factories = Pools[Kind::Factory];
    FactoryCount.resize(static_cast<std::size_t>(factories.Count()));
    // Hidden ones count too and nothing resets them, so the counter stops at its limit.
    for (std::int16_t& counter : FactoryCount) CountUp(counter);
    for (const int factory : factories.InTurn()) {
        const Sprite& sprite = factories[factory];
        std::int16_t& counter = FactoryCount[static_cast<std::size_t>(factory)];
        const auto product = ReadRecipe(factories.TagText(factory));
        if (product && Area(CellOf(sprite)) == Kind::Empty && product->Rest < counter) {
            counter = 0;
            if (CanBeMade(product->Made)) {
                SpawnObject(product->Made, sprite.Left, sprite.Top, Heading::Down);
            }
        }
        // What stands on the cell holds the counter at 0; a product made as a new sprite does not.
        if (Area(CellOf(sprite)) != Kind::Empty) counter = 0;
    }
}

} // namespace tumbledeep
