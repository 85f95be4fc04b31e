// A message box for a text that would push the buttons off the screen: the text scrolls. Short
// texts are the toolkit's own message box's.
#pragma once

#include <QDialog>
#include <QMessageBox>

namespace tumbledeep {

/// In characters; of a longer text the rest is left out, with "…" in its place.
inline constexpr qsizetype LongestShown = 100'000;

/// The text as it is shown, cut where it is too long. Bytes in UTF-8 go in.
QString ShownText(const std::string& text);

/// Whether a text as it is shown needs this box.
bool IsLong(const QString& text);

class LongTextBox final : public QDialog {
  public:
    /// Looks like a message box with these. Its result is the button that was pressed, 0 for none.
    LongTextBox(QWidget* parent, const QString& text, QMessageBox::Icon icon,
                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton first);
};

} // namespace tumbledeep
