// Windows and what stands in them, as plain data: the game writes it, a front end shows it. Nothing
// is drawn here; the game's two windows are frmMain.h and frmDocument.h.
#pragma once

#include <string>

namespace tumbledeep {

/// A window. Its place in its parent and its outer size are in twips, 15 to a pixel of the game.
struct Window {
    float Left = 0.0F;
    float Top = 0.0F;
    float Width = 0.0F;
    float Height = 0.0F;
    bool Visible = false;
    std::string Caption;
};

/// The game's number of the only mouse button that it heeds.
inline constexpr int LeftButton = 1;

/// A one-line text field; the place is in twips on its window.
struct TextBox {
    float Left, Top, Width, Height;
    std::string Text;
};

/// A status bar of one panel.
struct StatusBar {
    std::string Panel; ///< the text of the panel
};

/// One entry of a menu tree. The tree is a list in which an entry belongs to the last one before it
/// with a lower level.
struct MenuEntry {
    int Level;            ///< from 1, the entries of the menu bar
    const char* Caption;  ///< an ampersand stands before the access letter
    const char* Name;     ///< by which the game knows the entry
    bool Submenu = false; ///< it only opens others
    bool Checked = false;
};

} // namespace tumbledeep
