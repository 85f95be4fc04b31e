// The parent window on the screen. Every event reaches the game from here, timer, menu, keys and
// mouse, and afterwards the screen is made to agree with the game's data. The clock is held here
// while a dialog is open, and nowhere else. The board is painted by BoardCanvas; how large it all
// is is told in WindowSize.cpp.
#pragma once

#include "desktop/BoardCanvas.h"
#include "desktop/CloseRequests.h"
#include "desktop/DesktopPlatform.h"
#include "desktop/LoadProgress.h"
#include "desktop/StatusLine.h"
#include "windows/hands/Hands.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QAction;

namespace tumbledeep {

class GameWindow final : public QMainWindow {
  public:
    /// The game starts by itself when the window has come up. Game, hands and platform must outlive
    /// it.
    GameWindow(frmMain& game, Hands& hands, DesktopPlatform& platform, const Options& options);

    /// Shows the window as the options and the screen ask for: a first one with room for most maps,
    /// a successor maximised and in front.
    void Appear(const Options& options);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void StartGame();
    /// Lets the game take an event, to its end, and shows what it has changed. The end of the
    /// program, which the game throws, stops here.
    void Deliver(const std::function<void()>& event);
    /// The same for one thing that the player does.
    void Act(const PlayerAct& act);
    void Sync();
    void SyncStatus();
    /// The clock stands, and no dialog is open that holds it.
    bool IsPaused() const;
    void TakeOuterSize();
    void BuildMenu();
    void BuildShortcuts();
    /// The player's choice, or what the screen asks for.
    int AskedScale() const;
    /// What menu, status bar and frame take, in logical pixels.
    QSize OwnParts() const;
    void Rescale(int scale);
    void ChooseScale(std::optional<int> scale);
    void ShowLegend();
    void ConnectCanvas();
    void ConnectDialogs();
    /// The player goes to another program, or comes back from one.
    void Leave(bool away);
    /// A press of the mouse that comes from away, or is what has just ended that.
    bool BringsBack() const;
    void AwaitFocus();
    void TellShown();

    frmMain& game;
    Hands& hands;
    DesktopPlatform& platform;
    int periods;                   ///< of the game to a period of the timer
    std::vector<QAction*> actions; ///< by index in the game's menu, nullptr for a submenu
    std::string shownCaption;
    std::string placedMap; ///< the map that mapPlace is about
    std::string mapPlace;
    bool placeIsOld = false;
    QTimer timer;
    int openDialogs = 0;
    std::optional<int> chosenScale;
    int shownPipe; ///< where a predecessor waits to be told that this window is up; then -1
    bool started = false;
    bool ended = false;
    bool hadFocus = false;
    bool isAway = false;
    QElapsedTimer sinceReturn; ///< not valid before the first return
    CloseRequests closeRequests;
    StatusLine status;
    LoadProgress progress;
    /// Last, so that it goes first: it loses the focus as the window goes, and tells the window so.
    BoardCanvas canvas;
};

} // namespace tumbledeep
