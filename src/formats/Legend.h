// The marks of text pictures: which character stands for which objects of a cell, and the order in
// which a kind's objects are taken from a picture. The format as a whole is TextPicture.h's.
#pragma once

#include "world/Kind.h"

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tumbledeep {

/// An object as a mark means it: its kind, and the heading or recipe that is its tag.
struct MarkedObject {
    Kind Which;
    std::string Tag; ///< "" for kinds that have none
    friend bool operator<(const MarkedObject& a, const MarkedObject& b) {
        return std::tie(a.Which, a.Tag) < std::tie(b.Which, b.Tag);
    }
};

/// All that stands on one cell.
using MarkedCell = std::vector<MarkedObject>;
using Legend = std::map<char, MarkedCell>;

/// The marks that need no line in a picture's heading. A blank means an empty cell.
const Legend& DefaultLegend();

/// Whether a character can be a mark: the printable ones of ASCII but the blank, and "+" and "|",
/// with which other lines begin.
constexpr bool IsMark(char c) { return c > ' ' && c <= '~' && c != '+' && c != '|'; }

/// Whether a text can be a tag in a legend.
bool IsPlainTag(std::string_view tag);

/// Which rows of a picture give a kind's first objects.
enum class RowOrder { Down, Up };

/// Up for rocks, so that those which lie on one another fall as one; down for all others.
constexpr RowOrder DefaultOrder(Kind kind) {
    return kind == Kind::RoundRock ? RowOrder::Up : RowOrder::Down;
}

} // namespace tumbledeep
