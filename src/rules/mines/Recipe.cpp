// How a recipe is taken apart, and what can't be made: a player or a factory.
#include "rules/mines/Recipe.h"

namespace tumbledeep {

std::optional<Recipe> ReadRecipe(std::string_view text) {
    constexpr std::size_t kindStart = 2;
    if (text.size() < kindStart || text[0] < '0' || text[0] > '9') return std::nullopt;
    return Recipe{text[0] - '0', text.substr(kindStart)};
}

std::optional<Kind> KindMade(std::string_view product) {
    const auto kind = KindNamed(product);
    return kind == Kind::You || kind == Kind::Factory ? std::nullopt : kind;
}

std::optional<Kind> MadeBy(std::string_view tag) {
    const auto recipe = ReadRecipe(tag);
    return recipe ? KindMade(recipe->Product) : std::nullopt;
}

} // namespace tumbledeep
