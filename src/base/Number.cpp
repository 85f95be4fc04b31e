// How numbers are read and written. std::from_chars and std::to_chars do the work; what is ours is
// where a number ends in its text, and what counts as too large or too small.
#include "base/Number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace tumbledeep {

namespace {

bool IsNonZero(std::string_view number) {
    const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
    return mantissa.find_first_of("123456789") != std::string_view::npos;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t PassDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

/// The end of the exponent that begins at `at`, or `at` itself if none does.
std::size_t PassExponent(std::string_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
    const std::size_t end = PassDigits(text, digits);
    return end > digits ? end : at;
}

/// Of a number that single precision can't hold: true when it is too large, false when it is too
/// small. The power of ten of its first digit other than 0 decides.
bool IsLarge(std::string_view number) {
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mantissaEnd);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) return false;
    const bool negativeExponent = mantissaEnd + 1 < number.size() && number[mantissaEnd + 1] == '-';
    const double exponent = [&] {
        const std::size_t digits = number.find_first_of("0123456789", mantissaEnd);
        if (digits == std::string_view::npos) return 0.0;
        double value = 0;
        for (const char c : number.substr(digits)) value = value * 10 + (c - '0');
        return negativeExponent ? -value : value;
    }();
    return static_cast<double>(point) - static_cast<double>(first) + exponent > 0;
}

template <class Number> std::string Fixed(Number value) {
    std::array<char, 512> text{}; // the longest double has 309 digits and a sign
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

} // namespace

NumberPrefix ReadNumber(std::string_view text) {
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    std::size_t at = start;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t unsignedStart = at;
    at = PassDigits(text, at);
    std::size_t digits = at - unsignedStart;
    if (at < text.size() && text[at] == '.') {
        const std::size_t end = PassDigits(text, at + 1);
        digits += end - at - 1;
        at = end;
    }
    if (digits == 0) return {};
    at = PassExponent(text, at);

    const std::string_view number = text.substr(unsignedStart, at - unsignedStart);
    const double sign = negative ? -1.0 : 1.0;
    float value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec == std::errc::result_out_of_range && IsLarge(number)) {
        return {sign * std::numeric_limits<double>::infinity(), at, true};
    }
    // A number that is too small is plain 0, while a zero that was written keeps its sign.
    const bool tooSmall =
        read.ec == std::errc::result_out_of_range || (value == 0 && IsNonZero(number));
    return {tooSmall ? 0.0 : sign * static_cast<double>(value), at, false};
}

bool IsWhole(const NumberPrefix& number, std::string_view text) {
    return number.Length > 0 &&
           text.find_first_not_of(' ', number.Length) == std::string_view::npos;
}

std::optional<std::int64_t> ReadInteger(std::string_view text) {
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
    return value;
}

std::string FixedText(float value) { return Fixed(value); }
std::string FixedText(double value) { return Fixed(value); }

} // namespace tumbledeep
