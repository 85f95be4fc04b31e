// Reading and writing the game's settings file, which is also the only channel from one process of
// the game to the next. The file is the one beside the program; a Platform reads and writes it, and
// no copy of it is kept. How its text looks is formats/Profile.h's.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

class Platform;

/// The value of a key, its first 749 characters at most; "" when there is none. The key is asked
/// for in lower case, which says the same: settings are case-blind.
std::string IniRead(Platform& services, std::string_view section, std::string_view key);

/// Writes a value under the key in upper case. A failure goes unnoticed.
void IniWrite(Platform& services, std::string_view section, std::string_view key,
              std::string_view value);

/// A truth value as settings write it: "True" or "False".
std::string BoolText(bool value);

} // namespace tumbledeep
