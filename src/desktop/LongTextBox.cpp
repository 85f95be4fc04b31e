// The toolkit's message box makes itself as large as its text, whatever is put into it; hence a
// dialog of our own.
#include "desktop/LongTextBox.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace tumbledeep {

namespace {

/// Some fifteen lines of a message box.
constexpr qsizetype MostCharacters = 1000;
constexpr qsizetype MostLines = 15;
/// A message box breaks no word, and becomes as wide as its widest.
constexpr qsizetype LongestWord = 100;
/// In logical pixels; every screen has room for it.
constexpr QSize ViewSize{520, 300};
constexpr std::size_t BytesToCharacter = 4;

QStyle::StandardPixmap PictureOf(QMessageBox::Icon icon) {
    switch (icon) {
    case QMessageBox::Critical: return QStyle::SP_MessageBoxCritical;
    case QMessageBox::Question: return QStyle::SP_MessageBoxQuestion;
    case QMessageBox::Warning: return QStyle::SP_MessageBoxWarning;
    default: return QStyle::SP_MessageBoxInformation;
    }
}

} // namespace

QString ShownText(const std::string& text) {
    // Cut before anything else looks at it: a title may be as large as a file.
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
                               [](const QString& word) { return word.size() > LongestWord; });
}

LongTextBox::LongTextBox(QWidget* parent, const QString& text, QMessageBox::Icon icon,
                         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton first)
    : QDialog(parent) {
    auto* const grid = new QGridLayout(this);
    if (icon != QMessageBox::NoIcon) {
        auto* const picture = new QLabel;
        const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        picture->setPixmap(style()->standardIcon(PictureOf(icon), nullptr, this).pixmap(side));
        grid->addWidget(picture, 0, 0, Qt::AlignTop);
    }
    auto* const view = new QPlainTextEdit(text);
    view->setReadOnly(true);
    view->setMinimumSize(ViewSize);
    grid->addWidget(view, 0, 1);
    using Buttons = QDialogButtonBox::StandardButtons;
    auto* const row =
        new QDialogButtonBox(Buttons::fromInt(static_cast<Buttons::Int>(buttons.toInt())));
    grid->addWidget(row, 1, 0, 1, 2);
    for (QAbstractButton* const button : row->buttons()) {
        connect(button, &QAbstractButton::clicked, this,
                [this, which = row->standardButton(button)] { done(which); });
    }
    auto* const firstButton = row->button(static_cast<QDialogButtonBox::StandardButton>(first));
    firstButton->setDefault(true);
    firstButton->setFocus();
}

} // namespace tumbledeep
