// One thing that a player does, as a value. Every front end hands it to frmMain::Take in this form,
// and a script writes it down in lines of formats/Script.h.
#pragma once

#include "world/Heading.h"

#include <string>

namespace tumbledeep {

struct PlayerAct {
    enum class Do {
        Type,      ///< `Text` lands in the text field, all of it as one change
        Press,     ///< the arrow key `Key` goes down and stays down
        Release,   ///< the arrow key `Key` goes up
        Click,     ///< the left mouse button goes down on the board's own surface
        Drag,      ///< the board is moved by `X`, `Y` twips
        GotFocus,  ///< the board gets the focus of the keyboard
        LostFocus, ///< the board loses it
        Menu,      ///< the entry named by `Text` is chosen
        Resize,    ///< the parent's outer size becomes `X` by `Y` twips
    };
    Do What = Do::Click; ///< tells which of the other fields count
    std::string Text{};
    Heading Key = Heading::Up;
    float X = 0;
    float Y = 0;
};

} // namespace tumbledeep
