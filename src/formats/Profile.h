// Settings text: sections in square brackets with lines of key, "=" and value. A text goes in, a
// value or the changed text comes out; lines that are not asked for are kept byte for byte. The
// file is host/SettingsFile.h's, the keys that the game has are windows/'s.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

/// One line of a settings text.
struct ProfileLine {
    enum class Is { Section, Value, Other }; ///< Other is kept and never found: empty, or a note
    Is What = Is::Other;
    std::string_view Name;  ///< of the section or the key, without the blanks round it
    std::string_view Value; ///< what stands behind "=", as it is
    std::size_t Start = 0;  ///< where the line begins in the text
    std::size_t End = 0;    ///< where its line end begins
    std::size_t Next = 0;   ///< where the next line begins
};

/// Where the first line begins: behind a byte order mark.
std::size_t FirstProfileLine(std::string_view text);
/// The line that begins at a place of the text.
ProfileLine ReadProfileLine(std::string_view text, std::size_t start);

/// What stands behind "=" on the key's line, as it is; "" without such a line. Names count without
/// regard to case and the blanks and tabs round them, and of equal ones the first: the first such
/// section, and its first such key. Lines end in CR LF, LF alone or CR alone; a byte order mark in
/// front belongs to none. In a section's line "[" comes first, and a "]" behind it; what follows
/// that does not count. A line that begins with ";" is a note.
std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key);

/// Of a longer value no more is stored, so that no name in a list can fill a disk. The game reads
/// 749 characters of it.
inline constexpr std::size_t LongestStoredValue = 65535;

/// The text with "KEY=VALUE" in place of the key's line. A key that is not there is added behind
/// the last line of the section that is not empty, a section that is not there at the end. Added
/// lines end as the text's first line does. The value is cut at its first line end, as it can't add
/// lines, and behind LongestStoredValue.
std::string ProfileWith(std::string_view text, std::string_view section, std::string_view key,
                        std::string_view value);

} // namespace tumbledeep
