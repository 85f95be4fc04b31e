// The settings file, which is also the only channel from one process of the game to the next. The
// wrappers differ in the case of the key on purpose: the host is case-blind, and the file shows
// keys in upper case.
#pragma once

#include <string>
#include <string_view>

namespace tumbledeep {

class Platform;

/// The value of a key of the settings file, at most 749 characters; "" when there is none.
std::string IniRead(Platform& services, std::string_view section, std::string_view key);

/// Writes a value; the key stands in the file in upper case. A failure goes unnoticed.
void IniWrite(Platform& services, std::string_view section, std::string_view key,
              std::string_view value);

/// A truth value as the settings write it.
std::string BoolText(bool value);

} // namespace tumbledeep
