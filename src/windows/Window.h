// Windows and what stands in them, as plain data: the game writes it, a front end shows it.
#pragma once

#include <string>

namespace tumbledeep {

/// A window. Positions and sizes are twips, 15 to the pixel; the size is the outer one.
struct Window {
    float Left = 0.0F;
    float Top = 0.0F;
    float Width = 0.0F;
    float Height = 0.0F;
    bool Visible = false;
    std::string Caption;
};

/// A one-line text field; the place is in twips on its window.
struct TextBox {
    float Left, Top, Width, Height;
    std::string Text;
};

/// A status bar of one panel.
struct StatusBar {
    std::string Panel;
};

/// One entry of a menu tree. The tree is a list in which an entry belongs to the last one before
/// it with a lower level; an ampersand in the caption marks the access letter.
struct MenuEntry {
    int Level;
    const char* Caption;
    const char* Name;
    bool Submenu = false;
    bool Checked = false;
};

} // namespace tumbledeep
