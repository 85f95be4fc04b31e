// One turn for each factory: it makes an object by its recipe, the text of its tag, when it has
// rested long enough and its cell is free. How the object comes into play is SpawnObject's.
#include "rules/mines/Recipe.h"
#include "world/Board.h"

namespace tumbledeep {

namespace {

/// A turn with the factory's cell free.
void Work(Board& board, int factory, std::int16_t& counter) {
    const Pool& factories = board.Pools[Kind::Factory];
    const auto recipe = ReadRecipe(factories.TagText(factory));
    if (!recipe || recipe->Rest >= counter) return;
    // With a kind that can't be made the factory rests as if it had made one.
    counter = 0;
    const auto made = KindMade(recipe->Product);
    if (!made) return;
    const Sprite& sprite = factories[factory];
    board.SpawnObject(*made, sprite.Left, sprite.Top, Heading::Down);
}

} // namespace

void Board::FactoryTick() {
    const Pool& factories = Pools[Kind::Factory];
    FactoryCount.resize(static_cast<std::size_t>(factories.Count()));
    // Hidden factories, the template among them, count too, and nothing sets them back to 0: their
    // counters stop at 32767.
    for (std::int16_t& counter : FactoryCount) CountUp(counter);
    for (const int factory : factories.InTurn()) {
        std::int16_t& counter = FactoryCount[static_cast<std::size_t>(factory)];
        if (Area(factories.CellOf(factory)) == Kind::Empty) Work(*this, factory, counter);
        // The rest begins when the cell is free. A product that is a new sprite does not mark the
        // cell, so the factory goes on beside it; tests/films/FactoryTest.cpp pins it.
        if (Area(factories.CellOf(factory)) != Kind::Empty) counter = 0;
    }
}

} // namespace tumbledeep
