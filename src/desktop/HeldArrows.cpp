// The keys that are down, and the arrows that they hold. Two keys can hold the same arrow, one of
// them on the number pad.
#include "desktop/HeldArrows.h"

#include <algorithm>

namespace tumbledeep {

bool HeldArrows::Press(ScanCode code, std::optional<Heading> arrow) {
    const auto known = keys.find(code);
    if (known != keys.end() && known->second.Down) return true;
    if (known != keys.end()) keys.erase(known);
    if (arrow) Set(keys.emplace(code, Key{*arrow, false}).first->second, true);
    return arrow.has_value();
}

bool HeldArrows::Release(ScanCode code) {
    const auto known = keys.find(code);
    if (known == keys.end() || !known->second.Down) return false;
    Set(known->second, false);
    return true;
}

void HeldArrows::LoseKeyboard() {
    for (auto& [code, key] : keys) Set(key, false);
}

void HeldArrows::RegainKeyboard(const KeyboardState& state) {
    for (auto& [code, key] : keys) {
        if (code < state.size() && state[code]) Set(key, true);
    }
}

bool HeldArrows::Holds(Heading arrow) const {
    return std::any_of(keys.begin(), keys.end(), [arrow](const auto& entry) {
        return entry.second.Down && entry.second.Arrow == arrow;
    });
}

void HeldArrows::Set(Key& key, bool down) {
    const bool before = Holds(key.Arrow);
    key.Down = down;
    if (Holds(key.Arrow) != before) Changed(key.Arrow, down);
}

} // namespace tumbledeep
