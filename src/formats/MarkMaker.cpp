// Which marks are tried first: capitals for several objects, small letters for factories, digits
// for what else needs a mark.
#include "formats/MarkMaker.h"

namespace tumbledeep {

namespace {

/// All marks in the order in which a cell takes them, if they are free.
std::string Preferred(const MarkedCell& cell) {
    std::string wanted;
    if (cell.size() > 1) wanted = "ABCDEGHIJKMNSUVWXYZ";
    if (cell.front().Which != Kind::Factory) wanted += "123456789";
    for (char c = 'a'; c <= 'z'; ++c) wanted += c;
    for (char c = ' '; c <= '~'; ++c) {
        if (IsMark(c)) wanted += c;
    }
    return wanted;
}

} // namespace

MarkMaker::MarkMaker() {
    for (const auto& [mark, cell] : DefaultLegend()) {
        marks.emplace(cell, mark);
        used += mark;
    }
}

std::optional<char> MarkMaker::MarkOf(const MarkedCell& cell) {
    const auto known = marks.find(cell);
    if (known != marks.end()) return known->second;
    const std::string wanted = Preferred(cell);
    const std::size_t free = wanted.find_first_not_of(used);
    if (free == std::string::npos) return std::nullopt;
    const char mark = wanted[free];
    marks.emplace(cell, mark);
    made.emplace(mark, cell);
    used += mark;
    return mark;
}

} // namespace tumbledeep
