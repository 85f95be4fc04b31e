// The checks, each in a file of its name: a map or list goes in, doubts come out, in any order.
// Nothing is printed here. Only what needs files beside the one that is checked takes a path.
#pragma once

#include "map/check/CheckedMap.h"
#include "map/check/Finding.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string_view>

namespace tumbledeep {

/// Numbers, pools that are full, words too many, headings, titles.
Findings CheckLines(const CheckedMap& map);

/// First words that mean nothing to the game and are no comment.
Findings CheckKeywords(const CheckedMap& map);

/// The first words that were meant in lines whose objects are missing on the board; "" for a line
/// that may have meant any.
std::set<std::string_view> LostNames(const CheckedMap& map);

/// Lines that a comma cuts.
Findings CheckCommas(const CheckedMap& map);

/// Recipes that make nothing, and gems that come out of factories.
Findings CheckRecipes(const CheckedMap& map);

/// Objects between cells or off the board, and players too many.
Findings CheckPlaces(const CheckedMap& map);

/// What a map can't be played without, if it is not among the lost names: a player, a gem.
Findings CheckNeeds(const CheckedMap& map, const std::set<std::string_view>& lost);

/// Cells with several objects, one finding for each.
Findings CheckCells(const CheckedMap& map);

/// Ways out of the walls.
Findings CheckWalls(const CheckedMap& map);

/// Gems that no play can get. Silent where objects lie so that it can't be told.
Findings CheckReach(const CheckedMap& map);

/// A start that nobody lives through who does not run at once.
Findings CheckStart(const CheckedMap& map);

/// Whether a list beside a map names it.
Findings CheckListed(const std::filesystem::path& file);

/// A list, given its bytes; its maps are looked for in its folder.
Findings CheckList(const std::filesystem::path& folder, const std::string& bytes);

/// All checks of a file, a map, a text picture or a list; the findings stand by rising lines.
/// Throws std::runtime_error, as ReadMapSource does, for a file that can't be read.
Findings CheckFile(const std::string& name);

} // namespace tumbledeep
