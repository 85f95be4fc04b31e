// Settings text: sections in square brackets with lines of key, "=" and value. A text goes in, a
// value or the changed text comes out; lines that are not asked for are kept byte for byte. The
// file is host/HostFiles.h's, the keys that the game has are windows/'s.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

/// One line of a settings text. Lines end in CR LF, LF alone or CR alone.
struct ProfileLine {
    enum class Is { Section, Value, Other }; ///< Other is kept and never found: empty, or a note
    Is What = Is::Other;
    std::string_view Name;  ///< of the section or the key, without the blanks round it
    std::string_view Value; ///< what stands behind "=", as it is
    std::size_t Start = 0;  ///< where the line begins in the text
    std::size_t End = 0;    ///< where its line end begins
    std::size_t Next = 0;   ///< where the next line begins
};

/// All lines of a text; a byte order mark in front belongs to none. In a section's line "[" comes
/// first, blanks and tabs aside, and a "]" behind it; what follows that does not count. A line that
/// begins with ";" is a note.
std::vector<ProfileLine> ReadProfileLines(std::string_view text);

/// What stands behind "=" on the key's line, as it is; "" without such a line. Names count without
/// regard to case, and of equal ones the first: the first such section, and its first such key.
std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key);

/// The text with "KEY=VALUE" in place of the key's line. A key that is not there is added behind
/// the last line of the section that is not empty, a section that is not there at the end. Added
/// lines end as the text's first line does. The value is cut at its first line end: it can't add
/// lines.
std::string ProfileWith(std::string_view text, std::string_view section, std::string_view key,
                        std::string_view value);

} // namespace tumbledeep
