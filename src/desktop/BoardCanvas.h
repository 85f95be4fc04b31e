// The parent's client area with the board in it, as a widget: paints the board, and turns keys and
// mouse into what the player does, told by the functions below. What comes of that is GameWindow's;
// which parts need painting is BoardLook's.
#pragma once

#include "desktop/BoardLook.h"
#include "desktop/HeldArrows.h"
#include "desktop/HeldLetters.h"
#include "desktop/SpriteImages.h"
#include "windows/frmMain.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace tumbledeep {

class BoardCanvas final : public QWidget {
  public:
    explicit BoardCanvas(frmMain& game);

    // What the player does. The window sets all of these before anything happens.

    /// One character has been typed.
    std::function<void(const std::string& text)> Typed;
    std::function<void(Heading arrow, bool down)> ArrowKey;
    /// Caps Lock has gone on or off; with it on, letters are no keys of play.
    std::function<void(bool on)> CapsLockTurned;
    /// The left button has gone down on the board's own surface. False if that is no act of play:
    /// then its moves are none either.
    std::function<bool()> BoardPressed;
    /// The mouse has moved with that button held, and no drag has begun yet.
    std::function<void()> BoardMouseMoved;
    /// The mouse moves the board, by so many twips.
    std::function<void(float x, float y)> BoardDragged;
    /// The canvas is on the screen for the first time.
    std::function<void()> CameUp;
    /// The board has been painted for the first time.
    std::function<void()> BoardPainted;

    /// Looks at the board, which is painted as it is now until the next call, and has repainted
    /// what has changed since the last one.
    void Sync();
    /// Paints the board darker, as one that stands still.
    void SetDimmed(bool dim);
    /// A period of the running clock begins: held letters type again when it is time.
    void RepeatLetters();
    /// From here on the board follows the mouse, until the button is released.
    void BeginDrag() { dragging = true; }
    /// Whole device pixels to a pixel of the game.
    int Scale() const { return scale; }
    void SetScale(int wanted);
    /// The player and the cells round him, in the screen's coordinates; empty if out of sight.
    QRect RoundThePlayer() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void Type(const QString& text);
    void LookAtCapsLock();
    void SetCapsLock(bool on);
    /// A logical pixel is a square of whole device pixels.
    bool HasWholeRatio() const;
    void UpdateDevice(const QRegion& device);
    QRect DeviceRect() const;
    QPointF ToDevicePoint(const QPointF& logical) const;
    /// True if the point, in device pixels, is on the board's own surface and on no picture.
    bool OnSurface(const QPointF& device) const;
    /// Paints a part of the board that has its corner there.
    void PaintBoard(QPainter& painter, const QRect& part, QPoint corner) const;

    frmMain& game;
    int scale = 1;
    SpriteImages images;
    BoardLook look;
    HeldArrows arrows;
    HeldLetters letters;
    QRect shownBoard;
    int shownScale = 0;
    bool capsLock = false;
    bool dimmed = false;
    bool pressedOnBoard = false;
    bool dragging = false;
    bool cameUp = false;
    bool boardPainted = false;
    QPointF lastMouse;
};

} // namespace tumbledeep
