// The checks, each in a file of its name: a map or list goes in, doubts come out, in any order.
// Nothing is printed here. Only what needs files beside the one that is checked takes a path.
#pragma once

#include "map/CheckedMap.h"
#include "map/Finding.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace tumbledeep {

/// Numbers, pools that are full, words too many, headings, titles.
Findings CheckLines(const CheckedMap& map);

/// First words that mean nothing to the game and are no comment.
Findings CheckKeywords(const CheckedMap& map);

/// Whether a line that says nothing looks like an object's, so that one is missing on the board.
bool LosesObject(std::string_view text);

/// Lines that a comma cuts.
Findings CheckCommas(const CheckedMap& map);

/// Recipes that make nothing, and gems that come out of factories.
Findings CheckRecipes(const CheckedMap& map);

/// What a recipe makes; none when that is nothing.
std::optional<Kind> MadeBy(std::string_view recipe);

/// The number of players and gems, and objects between cells or off the board.
Findings CheckPlaces(const CheckedMap& map);

/// Cells with several objects, one finding for each.
Findings CheckCells(const CheckedMap& map);

/// Ways out of the walls.
Findings CheckWalls(const CheckedMap& map);

/// Gems that no play can get. Silent where objects lie so that it can't be told.
Findings CheckReach(const CheckedMap& map);

/// Whether a list beside a map names it.
Findings CheckListed(const std::filesystem::path& file);

/// A list, given its bytes; its maps are looked for in its folder.
Findings CheckList(const std::filesystem::path& folder, const std::string& bytes);

/// All checks of a file, a map, a text picture or a list; the findings stand by rising lines.
/// Throws std::runtime_error, as ReadMapSource does, for a file that can't be read.
Findings CheckFile(const std::string& name);

} // namespace tumbledeep
