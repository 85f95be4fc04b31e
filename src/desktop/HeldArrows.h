// Which arrows the player holds: keys go in, changes of the four arrows come out. A key is told by
// its place on the keyboard and not by its name: a key of the number pad changes its name with
// Shift and Num Lock, also while it is down.
#pragma once

#include "desktop/KeyboardState.h"
#include "world/Heading.h"

#include <functional>
#include <map>
#include <optional>

namespace tumbledeep {

class HeldArrows {
  public:
    /// Called when an arrow goes down, or up with no other key that holds it. Set before any key.
    std::function<void(Heading arrow, bool down)> Changed;

    /// The key goes down, or repeats, under the name of an arrow or none. True if it is an arrow's.
    bool Press(ScanCode code, std::optional<Heading> arrow);
    /// The key goes up. True if it was an arrow's.
    bool Release(ScanCode code);
    /// From here on no events come, so nothing counts as held.
    void LoseKeyboard();
    /// Events come again: what is down now counts, where the system tells.
    void RegainKeyboard(const KeyboardState& state);

  private:
    struct Key {
        Heading Arrow;
        bool Down;
    };
    bool Holds(Heading arrow) const;
    void Set(Key& key, bool down);

    std::map<ScanCode, Key> keys; ///< those whose last press had the name of an arrow
};

} // namespace tumbledeep
