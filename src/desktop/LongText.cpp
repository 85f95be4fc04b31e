// A long text takes the place of the box's own label.
#include "desktop/LongText.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>

namespace tumbledeep {

namespace {

/// In characters: some fifteen lines of a box.
constexpr qsizetype Long = 1000;
constexpr qsizetype ManyLines = 15;
constexpr qsizetype Longest = 100'000;
constexpr std::size_t BytesToCharacter = 4;
/// In logical pixels, within what every screen has.
constexpr QSize ViewSize{480, 280};

} // namespace

void SetText(QMessageBox& box, const std::string& text) {
    // Cut first, as a title may be as large as a file.
    const auto most = static_cast<std::size_t>(Longest + 1) * BytesToCharacter;
    QString shown = QString::fromStdString(text.substr(0, most));
    if (shown.size() > Longest) shown = shown.left(Longest) + QChar(0x2026);
    auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    const bool fits = shown.size() <= Long && shown.count('\n') < ManyLines;
    if (fits || label == nullptr || grid == nullptr) {
        box.setText(shown);
        return;
    }
    auto* const view = new QPlainTextEdit(shown);
    view->setReadOnly(true);
    view->setMinimumSize(ViewSize);
    view->setFrameShape(QFrame::NoFrame);
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
    grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
    label->hide();
    grid->addWidget(view, row, column, rows, columns);
}

} // namespace tumbledeep
