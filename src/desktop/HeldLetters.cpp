// The count of periods, and which of several keys counts.
#include "desktop/HeldLetters.h"

namespace tumbledeep {

namespace {

constexpr const char* PauseLetter = "p";

} // namespace

void HeldLetters::Press(ScanCode code, const std::string& letter) {
    Release(code);
    if (letter == PauseLetter) return;
    keys.push_back({code, letter});
    left = BeforeFirst;
}

void HeldLetters::Release(ScanCode code) {
    const bool wasLast = !keys.empty() && keys.back().Code == code;
    std::erase_if(keys, [code](const Key& key) { return key.Code == code; });
    if (wasLast) left = BetweenTwo;
}

std::string HeldLetters::Period() {
    if (keys.empty() || --left > 0) return "";
    left = BetweenTwo;
    return keys.back().Letter;
}

} // namespace tumbledeep
