// One turn for each factory: it makes an object by its recipe, the text of its tag, when it has
// rested long enough and its cell is free. How the object comes into play is SpawnObject's.
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// What a factory makes, and for how many calls it rests in between.
struct Product {
    Kind Made;
    int Rest;
};

/// A recipe such as "5:gem1type": a digit for the rest, any one character, the kind. None for a
/// text that begins otherwise; an unknown kind gives Kind::Empty.
std::optional<Product> ReadRecipe(std::string_view recipe) {
    constexpr std::size_t kindStart = 2;
    if (recipe.size() < kindStart || recipe[0] < '0' || recipe[0] > '9') return std::nullopt;
    // A kind that nobody knows makes nothing, but the factory rests as if it had.
    return Product{KindNamed(recipe.substr(kindStart)).value_or(Kind::Empty), recipe[0] - '0'};
}

bool CanBeMade(Kind kind) {
    return kind != Kind::Empty && kind != Kind::You && kind != Kind::Factory;
}

} // namespace

void Board::FactoryTick() {
    const Pool& factories = Pools[Kind::Factory];
    FactoryCount.resize(static_cast<std::size_t>(factories.Count()));
    // Hidden factories, the template among them, count too, and nothing sets them back to 0: their
    // counters stop at 32767.
    for (std::int16_t& counter : FactoryCount) CountUp(counter);
    for (const int factory : factories.InTurn()) {
        const Sprite& sprite = factories[factory];
        std::int16_t& counter = FactoryCount[static_cast<std::size_t>(factory)];
        const auto product = ReadRecipe(factories.TagText(factory));
        if (product && Area(factories.CellOf(factory)) == Kind::Empty && product->Rest < counter) {
            counter = 0;
            if (CanBeMade(product->Made)) {
                SpawnObject(product->Made, sprite.Left, sprite.Top, Heading::Down);
            }
        }
        // The rest begins when the cell is free. A product that is a new sprite does not mark the
        // cell, so the factory goes on beside it; tests/films/FactoryTest.cpp pins it.
        if (Area(factories.CellOf(factory)) != Kind::Empty) counter = 0;
    }
}

} // namespace tumbledeep
