// Names that were probably meant: a word that nobody knows goes in, the known name that it looks
// like comes out.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

/// The name that the word comes nearest to: the same but for case, or one or two letters off, or
/// what authors call the thing. "" when there is none.
std::string_view NearMiss(std::string_view word, std::span<const std::string_view> names);

/// Names as a hint lists them.
std::string Listed(std::span<const std::string_view> names);

/// The first words that mean something in a map.
std::vector<std::string_view> Keywords();

/// The kinds that a factory can make.
std::vector<std::string_view> Products();

} // namespace tumbledeep
