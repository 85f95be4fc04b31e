// The arrow keys that are held become steps, each as its letter would. The clock asks for them;
// keys that are typed come by MoveYou.
#include "rules/player/StepKeys.h"

namespace tumbledeep {

void Board::PollArrowKeys(HeldKeys held) {
    Walks.Clear();
    // All four are read every time: a first step that leaves the player ready allows a second;
    // tests/films/PlayerTest.cpp pins it.
    for (const Heading way : Headings) {
        if (held.Holds(way)) Step(KeyOf(way));
    }
}

} // namespace tumbledeep
