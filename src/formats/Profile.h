// Settings text: sections in square brackets with lines of key, "=" and value. Section and key
// names are case-blind; lines that are not asked for are kept byte for byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

/// One line of a settings text. Lines end in CR LF, LF alone and CR alone.
struct ProfileLine {
    enum class Is { Section, Value, Other };
    Is What = Is::Other;
    std::string_view Name;  ///< of the section or the key, without the blanks round it
    std::string_view Value; ///< what stands behind "=", as it is
    std::size_t Start = 0;  ///< where the line begins in the text
    std::size_t End = 0;    ///< where its line end begins
    std::size_t Next = 0;   ///< where the next line begins
};

/// All lines of a text, a byte order mark in front passed over. A section's line has "[" as its
/// first character but blanks and tabs and a "]" behind it; what follows that does not count.
std::vector<ProfileLine> ReadProfileLines(std::string_view text);

/// What stands behind "=" on the key's line, as it is; "" without such a line. Only the first
/// section of a name counts, and in it the first line of a key.
std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key);

/// The text with the key's line replaced where it stands, or added behind the last line of the
/// section that is not empty, or with a new section at the end. Added lines end as the text's own
/// first line does. The value is written up to its first line end, lest it forge lines.
std::string ProfileWith(std::string_view text, std::string_view section, std::string_view key,
                        std::string_view value);

} // namespace tumbledeep
