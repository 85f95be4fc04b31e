// Settings text: sections in square brackets with lines of key, "=" and value. Section and key
// names are case-blind; lines that are not asked for are kept byte for byte.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

/// What stands behind "=" on the key's line, as it is; "" without such a line.
std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key);

/// The text with the key's line replaced where it stands, or added behind the last line of the
/// section that is not empty, or with a new section at the end. Added lines end as the text's own
/// first line does. The value is written up to its first line end, lest it forge lines.
std::string ProfileWith(std::string_view text, std::string_view section, std::string_view key,
                        std::string_view value);

} // namespace tumbledeep
