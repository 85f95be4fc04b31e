// Comparison without regard to the case of ASCII letters, whatever the host's language.
#pragma once

#include <algorithm>
#include <string_view>

namespace tumbledeep {

constexpr char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool SameButCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return AsciiLower(x) == AsciiLower(y); });
}

} // namespace tumbledeep
