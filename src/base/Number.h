// Numbers as people write them in maps, settings and scripts: from text to value and back. The
// decimal sign is a point, whatever the host's language. Rounding is in base/Rounding.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The number that a text begins with, blanks in front aside: sign, digits, point, digits,
/// exponent.
struct NumberPrefix {
    double Value = 0;       ///< as single precision holds it; 0 when too small or no number
    std::size_t Length = 0; ///< characters up to the number's end; 0 when there is no number
    bool TooLarge = false;  ///< beyond single precision; `Value` is then infinite
};
NumberPrefix ReadNumber(std::string_view text);

/// Whether the number that was read from this text, and blanks round it, are all of the text.
bool IsWhole(const NumberPrefix& number, std::string_view text);

/// A whole number, digits alone or with "-" in front; none for any other text, blanks round the
/// number included, and for a number that the type can't hold.
std::optional<std::int64_t> ReadInteger(std::string_view text);

/// The number as std::to_chars writes it in fixed notation, without an exponent: "360", "0.5",
/// "-0".
std::string FixedText(float value);
std::string FixedText(double value);

} // namespace tumbledeep
