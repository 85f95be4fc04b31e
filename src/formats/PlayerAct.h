// One thing that a player does, as a value: the form in which every front end hands it to the game,
// and in which a script writes it down.
#pragma once

#include "world/Heading.h"

#include <string>

namespace tumbledeep {

struct PlayerAct {
    enum class Do {
        Type,      ///< `Text` lands in the text field, as one change
        Press,     ///< the arrow key `Key` goes down and stays down
        Release,   ///< and up
        Click,     ///< the left mouse button on the board's own surface
        Drag,      ///< the board is moved by `X`, `Y` twips
        GotFocus,  ///< of the board
        LostFocus, ///< of the board
        Menu,      ///< the entry named by `Text` is chosen
        Resize,    ///< the parent's outer size becomes `X` by `Y` twips
    };
    Do What = Do::Click;
    std::string Text{};
    Heading Key = Heading::Up;
    float X = 0;
    float Y = 0;
};

} // namespace tumbledeep
