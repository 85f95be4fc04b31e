// The board's window: a board with a form, a text field and a following view round it. It lives as
// long as the process and plays one map. Its routines' bodies are here, in view/ and in flow/.
#pragma once

#include "windows/Window.h"
#include "world/Board.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tumbledeep {

class frmMain;
class Platform;

/// How the view follows the player. A settings file edited by hand can give any other number,
/// which has the effect of none.
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
    ViewMode AutoMoveMode = ViewMode::None;
    bool ViewMovesX = false;
    bool ViewMovesY = false;
    float MapBottom = 0;   ///< of visible walls and dirt, in twips
    double MapRight = 0;   ///< likewise, whole, as large as it need be
    std::string LevelName; ///< the finished map without its extension

    // The clock and the keys.

    /// A period of the timer: one tick, and what it changes in the window. Does not return when
    /// the map ends.
    void Interval100Timer_Timer();
    /// The text field has changed: its text is a key.
    void Input_Box_Change();
    /// Carries out a key and clears the text field.
    void MoveYou(std::string_view key);
    void Form_GotFocus();
    void Form_LostFocus();
    /// A press of a mouse button on the board's own surface; 1 is the left one.
    void Form_MouseDown(int button);
    /// The mouse has moved on the board's own surface, with that button held.
    void Form_MouseMove(int button);

    // flow/: set-up, winning and dying.

    /// Puts the player in the middle of the parent.
    void YouStart();
    /// Makes the board ready for play and settles the following view.
    void ResetStart();
    /// Writes whether the next start plays the last map.
    void StartLastMap(bool on);
    /// Shows what follows a win or a death, starts the next process if the player goes on, and
    /// ends this one.
    [[noreturn]] void EndMap(Outcome outcome);
    /// Starts the map behind the finished one in the map list. Does not return.
    [[noreturn]] void NextLevel();

    // view/: the following view.

    /// Sizes the board by its walls and dirt, and centres it where it fits the parent.
    void ResizeForm();
    /// Reads the choice of the following view; asks for it on the very first run.
    void ViewChoice();
    /// Mode 1: shifts along with the player's steps.
    void NudgeView();
    /// Mode 2: glides towards the player.
    void ViewTick();
    /// Mode 3: flips by a page when the player nears an edge.
    void ViewEdgeTick();
    /// Switches the following view and stores the choice; a mode of None keeps the one there is.
    void AutoMoveChange(bool on, ViewMode mode);

  private:
    /// Finds how far the map's walls and dirt reach.
    void MeasureMap();
};

} // namespace tumbledeep
