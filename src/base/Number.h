// Numbers as people write them, in no host's language: the decimal sign is a point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The number that a text begins with, blanks in front aside: sign, digits, point, digits,
/// exponent; read in single precision.
struct NumberPrefix {
    double Value = 0;
    std::size_t Length = 0; ///< characters up to the number's end; 0 when there is no number
    bool TooLarge = false;  ///< beyond single precision; `Value` is then infinite
};
NumberPrefix ReadNumber(std::string_view text);

/// Whether the number and the blanks round it are all of the text.
bool IsWhole(const NumberPrefix& number, std::string_view text);

/// A whole number within the range of the type; none if the text is anything else.
std::optional<std::int64_t> ReadInteger(std::string_view text);

/// The number as std::to_chars writes it in fixed notation.
std::string FixedText(float value);
std::string FixedText(double value);

} // namespace tumbledeep
