// How events are delivered to the game and how its data come on the screen: timer, menu, status
// bar, dialogs, and what the focus has to do with them.
#include "desktop/GameWindow.h"

#include "desktop/Legend.h"
#include "desktop/MapPlace.h"
#include "formats/Script.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QWindow>

#include <array>
#include <iostream>
#include <utility>

namespace tumbledeep {

namespace {

using Do = PlayerAct::Do;

/// In milliseconds: how long a first dialog waits for the focus, which never comes without a window
/// manager.
constexpr int FocusPatience = 500;
/// In milliseconds: a press so soon after the return from another program is what has brought the
/// player back. A hand that comes back by other means needs longer for its first press.
constexpr int SamePress = 150;
/// In bytes: a little more than a file's name can have.
constexpr std::size_t LongestCaption = 300;
/// The exit status for a script that does not fit the dialog it meets.
constexpr int WrongScript = 2;

} // namespace

GameWindow::GameWindow(frmMain& main, Hands& player, DesktopPlatform& services,
                       const Options& options)
    : game(main),
      hands(player),
      platform(services),
      periods(options.Speed.value_or(1)),
      chosenScale(options.Scale),
      shownPipe(options.ShownPipe.value_or(-1)),
      closeRequests(winId(),
                    [this] {
                        if (openDialogs > 0) platform.Quit();
                    }),
      status(*this),
      progress(statusBar()),
      canvas(main) {
    setCentralWidget(&canvas);
    BuildMenu();
    BuildShortcuts();
    canvas.SetScale(AskedScale());
    connect(windowHandle(), &QWindow::screenChanged, this, [this] { Rescale(AskedScale()); });
    ConnectCanvas();
    ConnectDialogs();
    canvas.setFocus();

    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(game.ActiveChild.Interval100Timer.Interval);
    connect(&timer, &QTimer::timeout, this, [this] {
        for (int i = 0; i < periods && openDialogs == 0; ++i) {
            if (game.ActiveChild.Interval100Timer.Enabled) canvas.RepeatLetters();
            Deliver([this] { hands.Period(game); });
        }
    });
    // The application's state, not the window's: between the two windows of a dialog nobody leaves.
    connect(qApp, &QGuiApplication::applicationStateChanged, &canvas,
            [this](Qt::ApplicationState now) { Leave(now != Qt::ApplicationActive); });
    Sync();
}

/// A dialog that is open or about to be must take no answer from this.
void GameWindow::closeEvent(QCloseEvent* event) {
    platform.Quit();
    event->accept();
}

void GameWindow::ShowLegend() {
    if (!started || openDialogs > 0) return;
    Deliver([this] {
        Legend legend(this, canvas.Scale());
        platform.Exec(legend, 0);
    });
}

void GameWindow::StartGame() {
    started = true;
    progress.Begin();
    Deliver([this] { hands.Start(game); });
    progress.End();
}

void GameWindow::Deliver(const std::function<void()>& event) {
    if (ended) return;
    TakeOuterSize();
    try {
        event();
    } catch (const ProgramEnd&) {
        ended = true;
        timer.stop();
        platform.AwaitSuccessor();
        QCoreApplication::exit(0);
        return;
    } catch (const ScriptFault& fault) {
        ended = true;
        timer.stop();
        std::cerr << "tumbledeep: " << fault.what() << '\n';
        QCoreApplication::exit(WrongScript);
        return;
    }
    Sync();
}

void GameWindow::Act(const PlayerAct& act) {
    if (act.What == Do::Menu) placeIsOld = true;
    Deliver([this, &act] { hands.Act(game, act); });
}

void GameWindow::TakeOuterSize() {
    const qreal ratio = devicePixelRatioF() / canvas.Scale() * TwipsPerPixel;
    PlayerAct resize{Do::Resize};
    resize.X = static_cast<float>(frameGeometry().width() * ratio);
    resize.Y = static_cast<float>(frameGeometry().height() * ratio);
    if (resize.X != game.Form.Width || resize.Y != game.Form.Height) game.Take(resize);
}

void GameWindow::Sync() {
    if (game.Form.Caption != shownCaption) {
        shownCaption = game.Form.Caption;
        // The window system breaks off with who sends it a title of megabytes.
        setWindowTitle(QString::fromStdString(shownCaption.substr(0, LongestCaption)));
    }
    for (std::size_t i = 0; i < actions.size(); ++i) {
        const bool checked = game.Menu[i].Checked;
        if (actions[i] == nullptr || actions[i]->isChecked() == checked) continue;
        // Only an entry that has ever had a check mark keeps room for one.
        actions[i]->setCheckable(true);
        actions[i]->setChecked(checked);
    }
    SyncStatus();
    const bool runs = started && openDialogs == 0 &&
                      (game.ActiveChild.Interval100Timer.Enabled || hands.NeedsPeriods());
    if (runs && !timer.isActive()) timer.start();
    if (!runs) timer.stop();
    canvas.SetDimmed(IsPaused());
    canvas.Sync();
}

bool GameWindow::IsPaused() const {
    return started && openDialogs == 0 && !game.ActiveChild.Interval100Timer.Enabled;
}

void GameWindow::SyncStatus() {
    const frmDocument& board = game.ActiveChild;
    status.Show(StatusPlace::Panel, game.Info.Panel);
    status.Show(StatusPlace::Advice, !IsPaused() ? ""
                                     : isAway    ? "Paused until you come back"
                                                 : "Paused: p goes on");
    status.Show(StatusPlace::Note, hands.Note() + platform.Notice());
    // The list is a file, so it is read only when the map or the list may be another.
    if (std::exchange(placeIsOld, false) || board.Form.Caption != placedMap) {
        placedMap = board.Form.Caption;
        mapPlace = MapInList(game, platform);
    }
    const std::string view = ViewName(board);
    status.Show(StatusPlace::Map, mapPlace + (mapPlace.empty() || view.empty() ? "" : "; ") + view);
}

void GameWindow::BuildMenu() {
    std::array<QMenu*, 4> open{};
    for (const MenuEntry& entry : game.Menu) {
        const auto level = static_cast<std::size_t>(entry.Level);
        QAction* action = nullptr;
        if (entry.Submenu) {
            open[level] = level == 1 ? menuBar()->addMenu(entry.Caption)
                                     : open[level - 1]->addMenu(entry.Caption);
            // The toolkit would leave the keyboard with the menu bar. Queued, as the next menu may
            // open in this one's place.
            connect(
                open[level], &QMenu::aboutToHide, this,
                [this] {
                    if (QApplication::activePopupWidget() == nullptr) canvas.setFocus();
                },
                Qt::QueuedConnection);
        } else {
            action = open[level - 1]->addAction(entry.Caption);
            connect(action, &QAction::triggered, this, [this, name = std::string(entry.Name)] {
                Act({Do::Menu, name});
            });
        }
        actions.push_back(action);
    }
}

void GameWindow::BuildShortcuts() {
    const auto add = [this](const QList<QKeySequence>& keys, const std::function<void()>& does) {
        auto* const action = new QAction(this);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, does);
        addAction(action);
    };
    add({Qt::Key_F1}, [this] { ShowLegend(); });
    add({Qt::Key_F11}, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    add({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
        [this] { ChooseScale(canvas.Scale() + 1); });
    add({Qt::CTRL | Qt::Key_Minus}, [this] { ChooseScale(canvas.Scale() - 1); });
    add({Qt::CTRL | Qt::Key_0}, [this] { ChooseScale(std::nullopt); });
}

void GameWindow::ConnectCanvas() {
    canvas.Typed = [this](const std::string& text) {
        if (started) Act({Do::Type, text});
    };
    canvas.ArrowKey = [this](Heading arrow, bool down) {
        Act({down ? Do::Press : Do::Release, "", arrow});
    };
    canvas.CapsLockTurned = [this](bool on) {
        status.Show(StatusPlace::CapsLock, on ? "Caps Lock is on" : "");
    };
    canvas.BoardPressed = [this] {
        if (BringsBack()) return false;
        Act({Do::Click});
        return true;
    };
    canvas.BoardMouseMoved = [this] {
        Deliver([this] { game.ActiveChild.Form_MouseMove(LeftButton); });
    };
    canvas.BoardDragged = [this](float x, float y) {
        PlayerAct drag{Do::Drag};
        drag.X = x;
        drag.Y = y;
        Act(drag);
    };
    // The first exposure stands for the first activation: a window manager grants the focus some
    // time later, or never. Queued, as a game that starts may open dialogs.
    canvas.CameUp = [this] {
        QMetaObject::invokeMethod(
            this, [this] { StartGame(); }, Qt::QueuedConnection);
    };
    canvas.BoardPainted = [this] {
        QMetaObject::invokeMethod(
            this, [this] { TellShown(); }, Qt::QueuedConnection);
    };
    platform.BeginDrag = [this] { canvas.BeginDrag(); };
}

void GameWindow::ConnectDialogs() {
    platform.DialogParent = this;
    platform.PlayerOnScreen = [this] { return canvas.RoundThePlayer(); };
    platform.BeforeDialog = [this] {
        ++openDialogs;
        progress.End();
        Sync();
        TellShown();
        AwaitFocus();
    };
    platform.AfterDialog = [this] {
        --openDialogs;
        TakeOuterSize();
        progress.Begin();
    };
    platform.LoadProgress = [this](double share) { progress.Tell(share); };
}

void GameWindow::Leave(bool away) {
    if (isAway && !away) sinceReturn.start();
    isAway = away;
    if (started) Act({away ? Do::LostFocus : Do::GotFocus});
}

/// The window manager gives the focus before it lets the press through, or after.
bool GameWindow::BringsBack() const {
    return isAway || (sinceReturn.isValid() && !sinceReturn.hasExpired(SamePress));
}

/// A dialog that comes up before its parent has ever had the focus may never be given it.
void GameWindow::AwaitFocus() {
    if (hadFocus || QGuiApplication::focusWindow() != nullptr) {
        hadFocus = true;
        return;
    }
    QEventLoop loop;
    connect(qApp, &QGuiApplication::focusWindowChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(FocusPatience, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    hadFocus = true;
}

void GameWindow::TellShown() {
    if (shownPipe >= 0) Successor::TellShown(shownPipe);
    shownPipe = -1;
}

} // namespace tumbledeep
