// What a factory's tag says. The text of the tag goes in; what a factory does by it is
// FactoryTick.cpp's.
#pragma once

#include "world/Kind.h"

#include <optional>
#include <string_view>

namespace tumbledeep {

/// What a factory makes, and for how many calls of FactoryTick it rests in between.
struct Recipe {
    int Rest;
    std::string_view Product; ///< the text of the kind; it may be none that can be made
};

/// A recipe such as "5:gem1type": a digit for the rest, any one character, the kind. None for a
/// text that begins otherwise; that factory makes nothing.
std::optional<Recipe> ReadRecipe(std::string_view text);

/// The kind of a product; none for one that nobody knows, and for a player or a factory.
std::optional<Kind> KindMade(std::string_view product);

/// What a factory with that tag makes; none for nothing.
std::optional<Kind> MadeBy(std::string_view tag);

} // namespace tumbledeep
