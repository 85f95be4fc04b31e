// A player's hand as a text, a character to an act: it goes in, and what the player does comes out.
//     w a s d p     and any other small letter: is typed
//     ^ v < >       the arrow key goes down, or up again
//     ! F L         a click; the board gets the focus, loses it
//     0 to 8        the menu's entries that can be chosen, in their order
//     D E           the board is dragged this way, or back
//     R S           the window becomes small, or large again
//     . : ~         one period goes by, ten, a hundred
// Behind each act a period goes by. All other characters do nothing.
#pragma once

#include "windows/hands/Hands.h"

#include <string>
#include <string_view>

namespace tumbledeep {

class Hand {
  public:
    /// Does what the text says, for `periods` at most.
    Hand(std::string text, int periods);

    /// Plays to the text's end, `hands` being who plays. Throws ProgramEnd as the game does; what
    /// is left can be played on in another game.
    void Play(frmMain& game, Hands& hands);

    bool IsOver() const { return rest.empty() || left <= 0; }
    /// How many periods have been played.
    int Periods() const { return played; }

  private:
    void Act(frmMain& game, Hands& hands, char sign);
    void Period(frmMain& game, Hands& hands);

    std::string text;
    std::string_view rest;
    int left;
    int played = 0;
    HeldKeys keys;
};

/// The outer size of a window in which most boards fit, and of one in which few do, as acts.
extern const PlayerAct LargeWindow;
extern const PlayerAct SmallWindow;

} // namespace tumbledeep
