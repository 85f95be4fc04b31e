// Helpers that belong to no window.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

class Platform;

/// The full path of the settings file, beside the program.
std::string SettingsFile(const Platform& services);

/// The value of a key of the settings file, at most 749 characters; "" when there is none.
std::string IniRead(Platform& services, std::string_view section, std::string key,
                    const std::string& file);

/// Writes a value; the key stands in the file in upper case. A failure goes unnoticed.
void IniWrite(Platform& services, std::string_view section, std::string key, std::string_view value,
              const std::string& file);

/// The part of a path up to and with the last "\", and the part behind it.
std::string getpath(std::string_view text);
std::string getfilename(std::string_view text);

/// The word that begins at a character, counted from 1; "" at a blank or behind the end.
std::string_view WordAt(std::string_view text, std::size_t start);

/// What stands behind the last blank.
std::string_view LastWord(std::string_view text);

/// The text without the blanks at both ends.
std::string Trim(std::string_view text);

/// The text less its last 4 characters: a file name without its extension.
std::string WithoutExtension(std::string_view text);

/// A truth value as the settings write it.
std::string BoolText(bool value);

/// The number that a text begins with, blanks in front aside: sign, digits, point, digits,
/// exponent. `Length` is 0 when it begins with none.
struct NumberPrefix {
    double Value = 0;
    std::size_t Length = 0; ///< characters up to the number's end
    bool TooLarge = false;  ///< beyond single precision; `Value` is then infinite
};
NumberPrefix ReadNumber(std::string_view text);

} // namespace tumbledeep
