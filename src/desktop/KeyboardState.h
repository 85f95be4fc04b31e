// What the system itself says of the keyboard, for moments when no event has told: after a dialog
// or another program has had the focus. What the game makes of it is HeldArrows.h's.
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>

namespace tumbledeep {

/// A key by its place on the keyboard.
using ScanCode = std::uint32_t;

/// The keys that are down, by scan code.
using KeyboardState = std::bitset<256>;

/// The keyboard as it is now. All keys are up where the system does not tell: Wayland tells none.
KeyboardState AskKeyboard();

/// Whether Caps Lock is on; none where the system does not tell. The window may be any.
std::optional<bool> AskCapsLock(std::uint32_t window);

} // namespace tumbledeep
