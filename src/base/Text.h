// Plain text: case, blanks, the byte order mark. Nothing here asks for the host's language: letters
// are the ASCII ones, and a blank is the character 32 alone.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tumbledeep {

constexpr char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char AsciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Whether two texts differ at most in the case of their ASCII letters.
constexpr bool SameButCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return AsciiLower(x) == AsciiLower(y); });
}

/// The text without the characters of `blanks` at its two ends.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks = " ") {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The byte order mark that UTF-8 files may begin with.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace tumbledeep
