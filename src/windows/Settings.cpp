// The way from the game's keys to the settings file and back: the file's name, the case of keys,
// the longest value. Each call reads or writes the file anew.
#include "windows/Settings.h"

#include "base/Text.h"
#include "host/Platform.h"

namespace tumbledeep {

namespace {

/// Of a longer value only so many characters count: settings were always read into a buffer of 750
/// with a 0 at its end.
constexpr std::size_t LongestValue = 749;

std::string InCase(std::string_view key, char (*letter)(char)) {
    std::string text(key);
    std::transform(text.begin(), text.end(), text.begin(), letter);
    return text;
}

std::string SettingsFile(const Platform& services) {
    return services.AppPath() + "\\Tumbledeep.ini";
}

} // namespace

std::string IniRead(Platform& services, std::string_view section, std::string_view key) {
    return services
        .GetPrivateProfileString(section, InCase(key, AsciiLower), SettingsFile(services))
        .substr(0, LongestValue);
}

void IniWrite(Platform& services, std::string_view section, std::string_view key,
              std::string_view value) {
    services.WritePrivateProfileString(section, InCase(key, AsciiUpper), value,
                                       SettingsFile(services));
}

std::string BoolText(bool value) { return value ? "True" : "False"; }

} // namespace tumbledeep
