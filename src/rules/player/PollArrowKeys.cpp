// The polled road of the keys: state, no events, no memory.
#include "rules/player/StepKeys.h"

namespace tumbledeep {

void Board::PollArrowKeys(HeldKeys held) {
    // All four are read at every poll: a first step that leaves the player ready allows a second.
    for (const Heading way : Headings) {
        if (held.Holds(way)) Step(KeyOf(way));
    }
}

} // namespace tumbledeep
