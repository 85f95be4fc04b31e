// How large the window is when it comes up, and how large a pixel of the game is in it. The sums
// are ScreenScale's.
#include "desktop/GameWindow.h"
#include "desktop/ScreenScale.h"
#include "pictures/DevicePixels.h"

#include <QEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>

namespace tumbledeep {

namespace {

/// In logical pixels: a first window is not smaller where the screen has room.
constexpr QSize LeastFirstSize{1024, 768};
/// In twips: so much higher than the parent's middle the game puts a board that fits.
constexpr float RaisedBoard = 720;

} // namespace

void GameWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) platform.Carry(chosenScale, isFullScreen());
    QMainWindow::changeEvent(event);
}

void GameWindow::Appear(const Options& options) {
    const QSize room = screen()->availableSize();
    const QSizeF cells = QSizeF(RoomForCells(canvas.Scale())) / devicePixelRatioF();
    const QSize wanted = cells.toSize() + OwnParts();
    const bool isSuccessor = options.ShownPipe.has_value();
    resize(wanted.expandedTo(LeastFirstSize.boundedTo(room * 0.9)).boundedTo(room));
    const bool isFull = wanted.width() > room.width() || wanted.height() > room.height();
    setWindowState((isSuccessor || isFull ? Qt::WindowMaximized : Qt::WindowNoState) |
                   (options.FullScreen ? Qt::WindowFullScreen : Qt::WindowNoState));
    show();
    if (!isSuccessor) return;
    raise();
    activateWindow();
}

QSize GameWindow::OwnParts() const {
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    return {0, title + menuBar()->sizeHint().height() + statusBar()->sizeHint().height()};
}

int GameWindow::AskedScale() const {
    if (chosenScale) return *chosenScale;
    const qreal ratio = devicePixelRatioF();
    const QSize room = screen()->availableSize() - OwnParts();
    return BestScale((QSizeF(room) * ratio).toSize(), ratio);
}

void GameWindow::ChooseScale(std::optional<int> scale) {
    if (scale && (*scale < 1 || *scale > LargestScale)) return;
    chosenScale = scale;
    platform.Carry(chosenScale, isFullScreen());
    Rescale(AskedScale());
}

/// The board is moved as the player could drag it, so that the player stays in sight.
void GameWindow::Rescale(int scale) {
    if (scale == canvas.Scale() || ended) return;
    TakeOuterSize();
    const Window before = game.Form;
    canvas.SetScale(scale);
    TakeOuterSize();
    const frmDocument& board = game.ActiveChild;
    const Window& form = board.Form;
    PlayerAct drag{PlayerAct::Do::Drag};
    drag.X =
        PlaceInParent(form.Left, form.Width, board.You.Left, before.Width, game.Form.Width, 0) -
        form.Left;
    drag.Y = PlaceInParent(form.Top, form.Height, board.You.Top, before.Height, game.Form.Height,
                           RaisedBoard) -
             form.Top;
    if (form.Visible) game.Take(drag);
    Sync();
}

} // namespace tumbledeep
