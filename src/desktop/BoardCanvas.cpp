// Painting, keys and mouse of the board. All painting is in whole device pixels, whatever the
// screen's scale: the board is one picture here and no widget of its own, so that nothing between
// two cells can open or blur.
#include "desktop/BoardCanvas.h"

#include "desktop/Places.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tumbledeep {

namespace {

constexpr QRgb ParentBackground = 0xFF808080;
/// Over the white of the board a middle grey, through which all kinds can be told.
constexpr QColor Dimming(24, 28, 48, 112);

std::optional<Heading> ArrowOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left: return Heading::Left;
    case Qt::Key_Up: return Heading::Up;
    case Qt::Key_Right: return Heading::Right;
    case Qt::Key_Down: return Heading::Down;
    default: return std::nullopt;
    }
}

/// An event that no keyboard made has no place on one: there its name must do.
ScanCode CodeOf(const QKeyEvent& event) {
    const ScanCode code = event.nativeScanCode();
    return code != 0 ? code : static_cast<ScanCode>(event.key());
}

} // namespace

BoardCanvas::BoardCanvas(frmMain& main) : game(main) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
    images.SetScale(Scale());
    arrows.Changed = [this](Heading arrow, bool down) { ArrowKey(arrow, down); };
}

void BoardCanvas::SetScale(int wanted) {
    scale = wanted;
    images.SetScale(scale);
    update();
}

QRect BoardCanvas::DeviceRect() const {
    const qreal ratio = devicePixelRatioF();
    return {0, 0, static_cast<int>(std::ceil(width() * ratio)),
            static_cast<int>(std::ceil(height() * ratio))};
}

QPointF BoardCanvas::ToDevicePoint(const QPointF& logical) const {
    return logical * devicePixelRatioF();
}

QRect BoardCanvas::RoundThePlayer() const {
    const QRect board = BoardRect(game.ActiveChild, Scale());
    const QRect player = SpriteRect(game.ActiveChild.You, Scale()).translated(board.topLeft());
    if (!(DeviceRect() & board).intersects(player)) return {};
    const int round = 2 * SpriteSide(Scale());
    const QRect device = player.adjusted(-round, -round, round, round);
    const qreal ratio = devicePixelRatioF();
    return {mapToGlobal((QPointF(device.topLeft()) / ratio).toPoint()),
            (QSizeF(device.size()) / ratio).toSize()};
}

void BoardCanvas::Sync() {
    const QRect boardRect = BoardRect(game.ActiveChild, scale);
    const QPoint corner = boardRect.topLeft();
    ChangedTiles changes((DeviceRect() & boardRect).translated(-corner), scale);
    look.Update(game.ActiveChild, scale, changes);
    const QRect before = std::exchange(shownBoard, boardRect);
    const bool rescaled = std::exchange(shownScale, scale) != scale;
    if (rescaled || boardRect.size() != before.size()) return update();

    const QPoint moved = corner - before.topLeft();
    const auto ratio = static_cast<int>(devicePixelRatioF());
    if (!moved.isNull()) {
        if (!HasWholeRatio() || moved.x() % ratio != 0 || moved.y() % ratio != 0) return update();
        scroll(moved.x() / ratio, moved.y() / ratio);
    }
    UpdateDevice(changes.Region().translated(corner));
}

bool BoardCanvas::HasWholeRatio() const {
    return devicePixelRatioF() == std::floor(devicePixelRatioF());
}

/// At broken ratios a logical pixel covers parts of device pixels, so one more is taken all round.
void BoardCanvas::UpdateDevice(const QRegion& device) {
    const qreal ratio = devicePixelRatioF();
    if (ratio == 1) return update(device);
    const int round = HasWholeRatio() ? 0 : 1;
    for (const QRect& part : device) {
        const QRectF logical(part.x() / ratio, part.y() / ratio, part.width() / ratio,
                             part.height() / ratio);
        update(logical.toAlignedRect().adjusted(-round, -round, round, round));
    }
}

void BoardCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    // Undo the scaling and a broken offset of the widget: one unit becomes one device pixel.
    const QTransform device = painter.deviceTransform();
    QTransform wholePixels;
    wholePixels.translate(std::round(device.dx()), std::round(device.dy()));
    painter.setWorldTransform(wholePixels * device.inverted());

    const qreal ratio = devicePixelRatioF();
    const int round = HasWholeRatio() ? 0 : 1;
    const QRect boardRect = BoardRect(game.ActiveChild, Scale());
    for (const QRect& exposed : event->region()) {
        const QRect part = QRectF(exposed.x() * ratio, exposed.y() * ratio, exposed.width() * ratio,
                                  exposed.height() * ratio)
                               .toAlignedRect()
                               .adjusted(-round, -round, round, round);
        for (const QRect& outside : QRegion(part) - boardRect) {
            painter.fillRect(outside, QColor::fromRgb(ParentBackground));
        }
        PaintBoard(painter, part & boardRect, boardRect.topLeft());
    }
    if (!std::exchange(cameUp, true)) CameUp();
    if (game.ActiveChild.Form.Visible && !std::exchange(boardPainted, true)) BoardPainted();
}

void BoardCanvas::PaintBoard(QPainter& painter, const QRect& part, QPoint corner) const {
    if (part.isEmpty()) return;
    painter.setClipRect(part);
    painter.fillRect(part, Qt::white);
    for (const BoardLook::Shown& shown : look.Within(part.translated(-corner), Scale())) {
        painter.drawImage(shown.Corner + corner, images.Of(shown.Which, shown.Look));
    }
    if (dimmed) painter.fillRect(part, Dimming);
    painter.setClipping(false);
}

bool BoardCanvas::OnSurface(const QPointF& device) const {
    const QRect boardRect = BoardRect(game.ActiveChild, Scale());
    const QPoint point(static_cast<int>(device.x()), static_cast<int>(device.y()));
    if (!boardRect.contains(point)) return false;
    const auto there = look.Within({point - boardRect.topLeft(), QSize(1, 1)}, Scale());
    return std::ranges::all_of(there, IsSurface, &BoardLook::Shown::Which);
}

void BoardCanvas::LookAtCapsLock() {
    const auto on = AskCapsLock(static_cast<std::uint32_t>(window()->winId()));
    if (on) SetCapsLock(*on);
}

void BoardCanvas::SetCapsLock(bool on) {
    if (std::exchange(capsLock, on) != on) CapsLockTurned(on);
}

void BoardCanvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_CapsLock) LookAtCapsLock();
    if (arrows.Press(CodeOf(*event), ArrowOf(*event))) return;
    if (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) {
        return QWidget::keyPressEvent(event);
    }
    if (event->isAutoRepeat()) return;
    const QString text = event->text();
    if (text.size() == 1 && text.front().isPrint()) {
        letters.Press(CodeOf(*event), text.toStdString());
        // Where the system does not tell of the lock, its letters do.
        const bool shifted = event->modifiers().testFlag(Qt::ShiftModifier);
        if (text.front().isLetter()) SetCapsLock(text.front().isUpper() != shifted);
    }
    Type(text);
}

void BoardCanvas::SetDimmed(bool dim) {
    if (std::exchange(dimmed, dim) != dim) update();
}

void BoardCanvas::RepeatLetters() {
    if (const std::string letter = letters.Period(); !letter.empty()) Typed(letter);
}

void BoardCanvas::keyReleaseEvent(QKeyEvent* event) {
    // A key that repeats reports releases that no finger made.
    if (event->isAutoRepeat()) return;
    if (event->key() == Qt::Key_CapsLock) LookAtCapsLock();
    letters.Release(CodeOf(*event));
    if (!arrows.Release(CodeOf(*event))) QWidget::keyReleaseEvent(event);
}

void BoardCanvas::inputMethodEvent(QInputMethodEvent* event) {
    Type(event->commitString());
    event->accept();
}

void BoardCanvas::Type(const QString& text) {
    for (const QChar& character : text) {
        if (character.isPrint()) Typed(QString(character).toStdString());
    }
}

void BoardCanvas::focusInEvent(QFocusEvent* event) {
    arrows.RegainKeyboard(AskKeyboard());
    LookAtCapsLock();
    QWidget::focusInEvent(event);
}

void BoardCanvas::focusOutEvent(QFocusEvent* event) {
    arrows.LoseKeyboard();
    letters.LoseKeyboard();
    QWidget::focusOutEvent(event);
}

void BoardCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPointF device = ToDevicePoint(event->position());
    lastMouse = device;
    pressedOnBoard = OnSurface(device) && BoardPressed();
}

void BoardCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (!pressedOnBoard || !(event->buttons() & Qt::LeftButton)) return;
    if (!dragging) BoardMouseMoved();
    if (!dragging) return;
    const QPointF device = ToDevicePoint(event->position());
    const QPointF moved = (device - lastMouse) / Scale();
    lastMouse = device;
    BoardDragged(static_cast<float>(moved.x()) * TwipsPerPixel,
                 static_cast<float>(moved.y()) * TwipsPerPixel);
}

void BoardCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragging = false;
    pressedOnBoard = false;
}

} // namespace tumbledeep
