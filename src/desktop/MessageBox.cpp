// The toolkit's message box makes itself as large as its text, answers to bare letters and moves
// its choice by arrows; hence a dialog of our own.
#include "desktop/MessageBox.h"

#include "host/Platform.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

using Button = QDialogButtonBox::StandardButton;

/// What goes into a box as it is: some fifteen lines.
constexpr qsizetype MostCharacters = 1000;
constexpr qsizetype MostLines = 15;
constexpr qsizetype LongestShownWord = 100;
constexpr std::size_t BytesToCharacter = 4;
// In logical pixels; every screen has room for these.
constexpr QSize ViewSize{520, 300};
constexpr int WidestLine = 480;
/// For what a window manager puts beside a title.
constexpr int TitleButtons = 160;

/// A window's title may be set in bold letters.
constexpr double TitleLetters = 1.3;

QStyle::StandardPixmap PictureOf(int style) {
    switch (style) {
    case MsgBoxStyle::Stop: return QStyle::SP_MessageBoxCritical;
    case MsgBoxStyle::Question: return QStyle::SP_MessageBoxQuestion;
    default: return QStyle::SP_MessageBoxWarning;
    }
}

/// Cut before anything else looks at it: a title may be as large as a file.
QString ShownText(const std::string& text) {
    const auto most = static_cast<std::size_t>(LongestShown + 1) * BytesToCharacter;
    QString shown = QString::fromStdString(text.substr(0, most));
    if (shown.size() > LongestShown) shown = shown.left(LongestShown) + QChar(0x2026);
    return shown;
}

bool IsLong(const QString& text) {
    if (text.size() > MostCharacters || text.count('\n') + text.count('\r') >= MostLines)
        return true;
    const QStringList words = text.split(' ');
    return std::ranges::any_of(words,
                               [](const QString& word) { return word.size() > LongestShownWord; });
}

int AnswerOf(Button button) {
    switch (button) {
    case QDialogButtonBox::Yes: return MsgBoxAnswer::Yes;
    case QDialogButtonBox::No: return MsgBoxAnswer::No;
    default: return MsgBoxAnswer::Ok;
    }
}

bool IsArrow(int key) { return key >= Qt::Key_Left && key <= Qt::Key_Down; }

} // namespace

MessageBox::MessageBox(QWidget* parent, const QString& title, const std::string& text, int style)
    : QDialog(parent) {
    setWindowTitle(title);
    auto* const grid = new QGridLayout(this);
    grid->setSpacing(fontMetrics().height() / 2);
    if (style != MsgBoxStyle::Ok) {
        auto* const picture = new QLabel;
        const int side = this->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        const QIcon icon = this->style()->standardIcon(PictureOf(style), nullptr, this);
        picture->setPixmap(icon.pixmap(side));
        grid->addWidget(picture, 0, 0, Qt::AlignTop);
    }
    grid->addWidget(Showing(ShownText(text)), 0, 1);
    grid->setColumnStretch(1, 1);

    const bool asks = MsgBoxStyle::Asks(style);
    auto* const row = new QDialogButtonBox(asks ? QDialogButtonBox::Yes | QDialogButtonBox::No
                                                : QDialogButtonBox::Ok);
    grid->addWidget(row, 1, 0, 1, 2);
    for (QAbstractButton* const button : row->buttons()) {
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this,
                [this, answer = AnswerOf(row->standardButton(button))] { done(answer); });
    }
    QPushButton* const first = row->button(asks ? QDialogButtonBox::Yes : QDialogButtonBox::Ok);
    first->setDefault(true);
    first->setFocus();
    setMinimumWidth(qRound(fontMetrics().horizontalAdvance(title) * TitleLetters) + TitleButtons);
}

QWidget* MessageBox::Showing(const QString& text) {
    if (IsLong(text)) {
        view = new QPlainTextEdit(text);
        view->setReadOnly(true);
        view->setMinimumSize(ViewSize);
        return view;
    }
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    if (const int width = label->sizeHint().width(); width > WidestLine) {
        label->setWordWrap(true);
        label->setMinimumWidth(WidestLine);
    }
    return label;
}

/// The buttons would take arrows for a move of the choice.
bool MessageBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    auto* const key = static_cast<QKeyEvent*>(event);
    const bool scrolls =
        IsArrow(key->key()) || key->key() == Qt::Key_PageUp || key->key() == Qt::Key_PageDown;
    if (!scrolls) return QDialog::eventFilter(watched, event);
    if (view != nullptr) QCoreApplication::sendEvent(view, event);
    return true;
}

void StandClearOf(QDialog& dialog, const QRect& part) {
    const QWidget* const window = dialog.parentWidget()->window();
    if (part.isEmpty() || !window->isVisible()) return;
    dialog.adjustSize();
    // Its own frame is not there yet; the parent's is of the same kind.
    const QSize frame = window->frameGeometry().size() - window->geometry().size();
    dialog.move(CornerClearOf(part, dialog.size() + frame, window->frameGeometry(),
                              window->screen()->availableGeometry()));
}

QPoint CornerClearOf(const QRect& part, QSize size, const QRect& window, const QRect& screen) {
    QRect box(QPoint(), size);
    box.moveCenter(window.center());
    if (!box.intersects(part)) return box.topLeft();
    const QPoint middle = box.topLeft();
    const std::array<QPoint, 4> around{{
        {middle.x(), part.bottom() + 1},
        {middle.x(), part.top() - size.height()},
        {part.right() + 1, middle.y()},
        {part.left() - size.width(), middle.y()},
    }};
    QPoint best = middle;
    int least = screen.width() + screen.height();
    for (const QPoint& corner : around) {
        const int away = (corner - middle).manhattanLength();
        if (!screen.contains(QRect(corner, size)) || away >= least) continue;
        least = away;
        best = corner;
    }
    return best;
}

} // namespace tumbledeep
