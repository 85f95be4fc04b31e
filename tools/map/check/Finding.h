// A doubt about a map or a list: where it is, how much it weighs, what is wrong and how to mend it.
// The checks give rows of them; Check.cpp prints them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

enum class Severity : unsigned char {
    Warning, ///< may be meant so
    Error,   ///< the map or list can't work as it is written, or an object of it is lost
};

struct Finding {
    int Line = 1; ///< in the file, from 1; 1 too for what is no line's fault
    Severity Weight = Severity::Warning;
    std::string Text; ///< what is wrong
    std::string Hint; ///< how to mend it
    friend bool operator==(const Finding&, const Finding&) = default;
};

using Findings = std::vector<Finding>;

/// Pieces of a text in a row.
using Pieces = std::initializer_list<std::string_view>;

inline std::string Joined(Pieces pieces) {
    std::string text;
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

/// A text from the file in quotes, fit for a line of output: cut if it is long, with blanks in
/// place of tabs and line ends.
inline std::string Quoted(std::string_view text) {
    constexpr std::size_t longest = 40;
    std::string quoted(text.substr(0, longest));
    for (char& c : quoted) {
        if (c >= 0 && c < ' ') c = ' ';
    }
    return Joined({"\"", quoted, text.size() > longest ? "...\"" : "\""});
}

inline Finding Error(int line, Pieces text, Pieces hint) {
    return {line, Severity::Error, Joined(text), Joined(hint)};
}

inline Finding Warning(int line, Pieces text, Pieces hint) {
    return {line, Severity::Warning, Joined(text), Joined(hint)};
}

} // namespace tumbledeep
