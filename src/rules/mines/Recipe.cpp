// How a recipe is taken apart, and what can't be made: a player or a factory.
#include "rules/mines/Recipe.h"

namespace tumbledeep {

std::optional<Recipe> ReadRecipe(std::string_view text) {
    constexpr std::size_t kindStart = 2;
    if (text.size() < kindStart || text[0] < '0' || text[0] > '9') return std::nullopt;
    Recipe recipe{text[0] - '0', KindNamed(text.substr(kindStart))};
    if (recipe.Made == Kind::You || recipe.Made == Kind::Factory) recipe.Made.reset();
    return recipe;
}

} // namespace tumbledeep
