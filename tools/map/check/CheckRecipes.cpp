// What the factories of a map make, and why some make nothing.
#include "map/check/Checks.h"

#include "base/Text.h"
#include "formats/NearMiss.h"
#include "rules/mines/Recipe.h"

#include <algorithm>
#include <set>

namespace tumbledeep {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

struct Reason {
    std::string What;
    std::string Hint;
};

/// Of a recipe that begins with a digit.
Reason KindReason(std::string_view recipe) {
    const auto read = ReadRecipe(recipe);
    const std::string_view kind = read ? read->Product : "";
    const std::string digit(1, recipe.front());
    if (KindMade(recipe.substr(1))) {
        return {"there is no character between the digit and the kind",
                Joined({"write ", digit, ":", recipe.substr(1)})};
    }
    if (kind.empty()) return {"the recipe has no kind", "write a recipe such as 5:roundrock"};
    if (IsDigit(recipe[1])) {
        return {"the recipe has more than one digit", "the longest rest is 9, as in 9:roundrock"};
    }
    if (KindNamed(kind)) {
        return {Joined({"a factory can't make ", kind == "you" ? "a player" : "factories"}),
                "name another kind"};
    }
    const std::string_view meant = NearMiss(kind, Products());
    return {Joined({"there is no kind ", Quoted(kind)}),
            meant.empty() ? Joined({"the kinds are ", Listed(Products())})
                          : Joined({"did you mean ", Quoted(meant)})};
}

Reason WhyNothing(const MapObject& factory, std::string_view text) {
    const std::string& recipe = factory.Tag;
    if (std::ranges::count(Trimmed(text), ' ') < 3) {
        return {"the recipe is missing", "end the line with one such as 5:roundrock"};
    }
    if (recipe.empty()) {
        return {"the blank at the end of the line hides the recipe", "take it away"};
    }
    if (!IsDigit(recipe.front())) {
        return {Joined({"the recipe ", Quoted(recipe), " does not begin with a digit"}),
                "write a recipe such as 5:roundrock"};
    }
    return KindReason(recipe);
}

/// The cells on which a gem stands at the start.
std::set<unsigned> GemCells(const CheckedMap& map) {
    std::set<unsigned> cells;
    for (const MapObject& object : map.Objects) {
        if (object.Which == Kind::Gem1Type) cells.insert(object.At().Number());
    }
    return cells;
}

Finding UncountedFinding(int line) {
    return Warning(line,
                   {"gems that this factory makes may not count for the win, and then the last one "
                    "can be gathered without winning"},
                   {"put a gem on the factory's cell from the start"});
}

} // namespace

Findings CheckRecipes(const CheckedMap& map) {
    Findings found;
    const std::set<unsigned> gems = GemCells(map);
    for (const MapObject& factory : map.Objects) {
        if (factory.Which != Kind::Factory) continue;
        const auto made = MadeBy(factory.Tag);
        if (!made) {
            const auto [what, hint] = WhyNothing(factory, map.Source.Lines[factory.Record].Text);
            found.push_back(Error(map.Source.TagLine(factory.Record),
                                  {what, ", so the factory makes nothing"}, {hint}));
        } else if (made == Kind::Gem1Type && !gems.contains(factory.At().Number())) {
            found.push_back(UncountedFinding(factory.Line));
        }
    }
    return found;
}

} // namespace tumbledeep
