// The board's window: a board with a form, a text field and a following view round it. It lives as
// long as the process and plays one map. Periods of the timer, keys and mouse events go in; the
// view, the status bar and, at the end of a map, boxes and the next process come of it. Bodies of
// its routines are in flow/ and view/ besides frmDocument.cpp; the rules of the game are Board's.
#pragma once

#include "windows/Window.h"
#include "world/Board.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tumbledeep {

class frmMain;
class Platform;

/// How the view follows the player. Any other number, which a settings file edited by hand and a
/// negative number typed can give, has the effect of None.
enum class ViewMode : std::int16_t { None = 0, Centre = 1, GradualCentre = 2, EdgeOfScreen = 3 };

class frmDocument : public Board {
  public:
    /// A board with nothing but the templates, its clock running.
    frmDocument(frmMain& parent, Platform& services);
    /// A window is no value: copy its board instead.
    frmDocument(const frmDocument&) = delete;
    frmDocument& operator=(const frmDocument&) = delete;

    frmMain& Parent;
    Platform& Services;
    Window Form;                               ///< placed inside the parent's client area
    TextBox Input_Box{18720, 0, 375, 405, {}}; ///< catches typed characters; empty between events
    HeldKeys ArrowKeys;                        ///< as the player holds them now
    bool AutoMoveOn = false;                   ///< the following view is switched on
    ViewMode AutoMoveMode = ViewMode::None;    ///< counts only while that is so
    bool ViewMovesX = false;                   ///< mode 1 may shift the board left and right
    bool ViewMovesY = false;                   ///< mode 1 may shift it up and down
    std::string LevelName; ///< of a map that is won, without its extension; "" before

    // The clock and the keys.

    /// A period of the timer: one tick, and what it changes in the window. Does not return when
    /// the map ends.
    void Interval100Timer_Timer();
    /// The text field has changed: its text is a key.
    void Input_Box_Change();
    /// Carries out a key as Board::MoveYou does, clears the text field and lets mode 1 follow.
    void MoveYou(std::string_view key);
    /// Starts the clock, whoever has stopped it.
    void Form_GotFocus();
    /// Stops the clock.
    void Form_LostFocus();
    /// A mouse button goes down on the board's own surface. The left one, 1, stops the clock or
    /// starts it again.
    void Form_MouseDown(int button);
    /// The mouse has moved on the board's own surface, with that button held. With the left one a
    /// drag of the board begins.
    void Form_MouseMove(int button);

    // flow/: set-up, winning and dying.

    /// Moves the window so that the player stands in the middle of the parent. The player's cell is
    /// Board::YouStart's.
    void CentreOnYou();
    /// Board::ResetStart with a seed of the platform's, and the choice of the following view.
    void ResetStart();
    /// Writes into the settings whether the next start plays the last map.
    void StartLastMap(bool on) const;
    /// Shows the boxes that follow a win or a death, starts the next process if the player goes on,
    /// and ends this one. `outcome` is not Running.
    [[noreturn]] void EndMap(Outcome outcome);
    /// Starts the map behind the finished one in the map list. Without one, tells the player or
    /// asks for another list; ends the process in any case.
    [[noreturn]] void NextLevel();

    // view/: the following view.

    /// Sizes the window by the map's walls and dirt. On each axis it is centred if it fits the
    /// parent, and otherwise laid to the edge near which the player stands.
    void ResizeForm();
    /// Takes the following view from the settings. On the very first run asks the player and writes
    /// the answers there.
    void ViewChoice();
    /// Mode 1: the board shifts by a cell with each of the last steps. Nothing in other modes.
    void NudgeView();
    /// Mode 2: the board glides towards the player. Nothing in other modes.
    void ViewTick();
    /// Mode 3: the board flips by a page when the player nears an edge. The caller tests the mode.
    void ViewEdgeTick();
    /// Switches the following view and writes it into the settings; with None the mode stays.
    void AutoMoveChange(bool on, ViewMode mode);

  private:
    // A tick that the window does not see would leave it behind.
    using Board::Period;
    using Board::Tick;
};

} // namespace tumbledeep
