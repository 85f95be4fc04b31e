// The board window: the grid, the pools, the clock and all rules of the game. It lives as long as
// the process and plays one map. Every routine's body is in a file of its name, in the folder
// that its heading below names.
#pragma once

#include "board/Area.h"
#include "board/Heading.h"
#include "board/Picture.h"
#include "platform/Pool.h"
#include "platform/Window.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

class frmMain;
class Platform;
struct WallMine;
struct Hunter;

class frmDocument {
  public:
    /// A board with nothing but the templates, its clock running.
    frmDocument(frmMain& parent, Platform& services);

    // The window and what stands in it.

    frmMain& Parent;
    Platform& Services;
    Window Form;                               ///< placed inside the parent's client area
    Timer Interval100Timer{10, true};          ///< 10 milliseconds, whatever its name says
    TextBox Input_Box{18720, 0, 375, 405, {}}; ///< catches typed characters; empty between events
    CommonDialog dlgCommonDialog;

    // The sprites. Index 0 of a pool is a hidden template.

    Sprite You{2280, 4560, true};
    Pool HardDirt{2760, 4560, Picture::None};
    Pool Dirt{3240, 4560, Picture::None};
    Pool Gem1Type{Away, Away, Picture::GemTypePic};
    Pool RoundRock{Away, Away, Picture::RoundRockPic};
    Pool MovingMineT{Away, Away, Picture::MovingMineT};
    Pool MovingMineL{Away, Away, Picture::MovingMineL};
    Pool MovingMineR{Away, Away, Picture::MovingMineR};
    Pool MovingMineFL{Away, Away, Picture::MovingMineFL};
    Pool MovingMineP{Away, Away, Picture::MovingMineP};
    Pool MovingMinePP{Away, Away, Picture::MovingMinePP};
    Pool Factory{Away, Away, Picture::Factory}; ///< `Tag` is the recipe
    Pool Bang{Away, Away, Picture::Bang};

    // The board's state.

    float PushMineCol = 0; ///< cell of the T mine under test in a push, not rounded
    double PushMineRow = 0;
    std::string AutoMoveText;      ///< the setting AutoMove, Move as read
    std::int16_t TickCount = 0;    ///< 0 to 300
    std::int16_t LocateAnswer = 0; ///< answer to the question whether to locate a map list
    bool AutoMoveOn = false;       ///< the following view is switched on
    std::int16_t AutoMoveMode = 0; ///< 1 Centre, 2 Gradual Centre, 3 Edge of screen
    AreaGrid Area;
    int PoolIndex = 0;     ///< counter of nearly all pool loops; SpreadBang takes its Bang from it
    int InnerIndex = 0;    ///< counter of loops inside loops
    float YouCol = 0;      ///< the player's column, not rounded
    double YouRow = 0;     ///< the player's row, whole, as large as it need be
    float RollSide = 0;    ///< 1 right, 2 left
    float PushRockCol = 0; ///< cell of the rock under test in a push
    double PushRockRow = 0;
    std::int16_t GemsLeft = 0; ///< as of the last recount
    bool YouDead = false;
    std::int16_t Answer = 0;   ///< of the last yes/no question
    bool MoveReady = false;    ///< the player may take a step
    std::int16_t GemTotal = 0; ///< Count of `Gem1Type` when the map was set up
    float MapBottom = 0;       ///< of visible walls and dirt, in twips
    double MapRight = 0;       ///< likewise, whole, as large as it need be
    std::string LevelName;     ///< the finished map without its extension
    std::string ListLine;      ///< the entry last read from a map list
    bool ViewMovesY = false;
    bool ViewMovesX = false;
    std::vector<std::int16_t> FactoryCount; ///< by index in `Factory`, as long as the pool
    int FreeSlot = 0;                       ///< the hidden sprite that SpawnObject found, or -1

    // board/: the clock and the objects.

    /// One tick: all routines that are due at the next value of `TickCount`.
    void Interval100Timer_Timer();
    /// Shows the number of gems of the last recount in the status bar.
    void ShowGemsRemaining();
    /// Brings a sprite of the kind named into play at a position in twips, reusing the hidden
    /// sprite with the highest index if there is one. Only then is the cell in `Area` written.
    /// Any other text, or a full pool, does nothing.
    void SpawnObject(std::string_view kind, float left, float top, std::string_view tag);
    /// Gives a sprite a picture.
    void CopyPicture(PoolSprite target, Picture source) { target.Picture = source; }
    /// A random member of a picture pool; the first and the last come half as often as the others.
    Picture RandomMember(Picture pool, int count);
    /// The pool of a kind; nullptr for an empty cell and the player.
    Pool* PoolOf(Kind kind);
    /// Moves a sprite by whole cells and its kind with it in `Area`.
    void MoveSprite(PoolSprite sprite, Offset offset, Kind kind);

    // maps/: set-up and level flow.

    /// Takes the player's cell from the sprite and puts the player in the middle of the parent.
    void YouStart();
    /// Gives the mines the pictures of their headings and counts the gems.
    void ResetArea();
    /// Stamps `Area` from the sprites and makes the board ready for play.
    void ResetStart();
    /// Writes every visible sprite of a kind into `Area`.
    void Stamp(Kind kind);
    /// Writes whether the next start plays the last map.
    void StartLastMap(bool on);
    /// Recounts the gems; wins with none left.
    void CheckGameEnd();
    /// The death sequence. Does not return.
    [[noreturn]] void YouDie();
    /// The part of the death sequence behind its first box. Does not return.
    [[noreturn]] void AskPlayAgain();
    /// Starts the map behind the finished one in the map list. Does not return.
    [[noreturn]] void NextLevel();

    // player/: keys and steps.

    /// The text field has changed: its text is a key.
    void Input_Box_Change();
    /// Gives the arrow keys that are held their step.
    void PollArrowKeys();
    /// Carries out a key: "w", "a", "s", "d" or "p"; others only clear the text field.
    void MoveYou(std::string_view key);

    // gravity/: rocks, gems and blasts.

    void RockTick();
    void GemTick();
    void BangTick();
    /// Spreads the Bang at `PoolIndex` over the nine cells round it.
    void SpreadBang();
    /// Draws the side to which everything rolls in this call.
    void DrawRollSide();
    /// Rolls a sprite to the side drawn, if the cell there and the one below it are free.
    void Roll(PoolSprite sprite, Kind kind);

    // mines/: six kinds of mine, and the factory.

    void MineLTick();
    void MineRTick();
    void MineFLTick();
    void MineTTick();
    void MinePTick();
    void MinePPTick();
    void FactoryTick();
    /// Sets a mine's heading and the picture that shows it.
    void Turn(PoolSprite mine, Heading heading, Picture upPic);
    /// True when the player stands in one of the four neighbour cells.
    bool TouchesYou(PoolSprite sprite);

    // shell/: the following view, and the events of the window.

    /// Sizes the board by its walls and dirt, and centres it where it fits the parent.
    void ResizeForm();
    /// Reads the choice of the following view; asks for it on the very first run.
    void ViewChoice();
    /// Mode 2: glides towards the player.
    void ViewTick();
    /// Mode 3: flips by a page when the player nears an edge.
    void ViewEdgeTick();
    /// Switches the following view and stores the choice; a mode of 0 keeps the one there is.
    void AutoMoveChange(bool on, std::int16_t mode);
    void Form_GotFocus();
    void Form_LostFocus();
    /// A press of a mouse button on the board's own surface; 1 is the left one.
    void Form_MouseDown(int button);
    /// The mouse has moved on the board's own surface, with that button held.
    void Form_MouseMove(int button);

  private:
    /// Where the templates of picture pools stand.
    static constexpr float Away = -100000;

    // player/MoveYou.cpp
    struct Way;
    void PushStage(const Way& way);
    void Push(PoolSprite sprite, const Way& way, Kind kind);
    void Walk(const Way& way);
    void NudgeView(const Way& way);
    void TakeFrom(Pool& pool, const Way& way);

    // gravity/
    void RockLanding(PoolSprite rock);
    void SpreadOver(Offset offset);

    // mines/
    void WallMineTurn(PoolSprite mine, const WallMine& rules);
    void WallMineTick(const WallMine& rules);
    void HunterBlock(PoolSprite mine, const Hunter& rules, Heading heading);
};

} // namespace tumbledeep
