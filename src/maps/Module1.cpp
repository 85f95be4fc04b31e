// The settings' wrappers differ in the case of the key on purpose: the service is case-blind, and
// the file shows the keys in upper case.
#include "maps/Module1.h"

#include "platform/AsciiCase.h"
#include "platform/Platform.h"

#include <algorithm>

namespace tumbledeep {

namespace {

/// What the service's buffer takes beside the character of code 0 at its end.
constexpr std::size_t LongestValue = 749;

char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

} // namespace

std::string SettingsFile(const Platform& services) {
    return services.AppPath() + "\\Tumbledeep.ini";
}

std::string IniRead(Platform& services, std::string_view section, std::string key,
                    const std::string& file) {
    std::transform(key.begin(), key.end(), key.begin(), AsciiLower);
    return services.GetPrivateProfileString(section, key, file).substr(0, LongestValue);
}

void IniWrite(Platform& services, std::string_view section, std::string key, std::string_view value,
              const std::string& file) {
    std::transform(key.begin(), key.end(), key.begin(), AsciiUpper);
    services.WritePrivateProfileString(section, key, value, file);
}

std::string getpath(std::string_view text) {
    return std::string(text.substr(0, text.rfind('\\') + 1));
}

std::string getfilename(std::string_view text) {
    return std::string(text.substr(text.rfind('\\') + 1));
}

std::string_view WordAt(std::string_view text, std::size_t start) {
    if (start > text.size()) return {};
    const std::string_view rest = text.substr(start - 1);
    return rest.substr(0, rest.find(' '));
}

std::string_view LastWord(std::string_view text) { return text.substr(text.rfind(' ') + 1); }

std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return "";
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string WithoutExtension(std::string_view text) {
    return std::string(text.substr(0, text.size() < 4 ? 0 : text.size() - 4));
}

std::string BoolText(bool value) { return value ? "True" : "False"; }

} // namespace tumbledeep
