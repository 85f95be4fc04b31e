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
    std::optional<Kind> Made; ///< none for a kind that nobody knows or that can't be made
};

/// A recipe such as "5:gem1type": a digit for the rest, any one character, the kind. None for a
/// text that begins otherwise; that factory makes nothing.
std::optional<Recipe> ReadRecipe(std::string_view text);

} // namespace tumbledeep
