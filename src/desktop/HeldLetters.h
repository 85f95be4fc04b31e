// How a letter repeats while its key is held, in periods of the clock, whatever the desktop's own
// repeat is set to. Keys go in, letters to type come out. Arrows are HeldArrows'.
#pragma once

#include "desktop/KeyboardState.h"

#include <string>
#include <vector>

namespace tumbledeep {

class HeldLetters {
  public:
    /// In periods. A press is one step for 150 ms; then letters are as fast as held arrows.
    static constexpr int BeforeFirst = 15;
    static constexpr int BetweenTwo = 6;

    /// The key goes down, with the letter that it types; that is not repeated yet. The pause key's
    /// never is: it would undo itself.
    void Press(ScanCode code, const std::string& letter);
    void Release(ScanCode code);
    /// From here on no events come, so nothing counts as held.
    void LoseKeyboard() { keys.clear(); }

    /// A period has passed. The letter to type now, "" for none: the one pressed last of those that
    /// are held.
    std::string Period();

  private:
    struct Key {
        ScanCode Code;
        std::string Letter;
    };
    std::vector<Key> keys; ///< in the order of their presses
    int left = 0;          ///< periods until the next repeat
};

} // namespace tumbledeep
