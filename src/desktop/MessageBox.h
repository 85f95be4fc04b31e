// The game's message boxes. They stand clear of the player, so that what has killed can be seen,
// and take no answer from the keys of play, so that nobody quits by running. A long text scrolls.
#pragma once

#include <QDialog>

#include <string>

class QPlainTextEdit;

namespace tumbledeep {

/// In characters; of a longer text the rest is left out, with "…" in its place.
inline constexpr qsizetype LongestShown = 100'000;

class MessageBox final : public QDialog {
  public:
    /// A box of a MsgBoxStyle with a text in UTF-8. Its result is a MsgBoxAnswer, or 0 if it was
    /// closed. Enter presses the button that has the keyboard, at first Yes or OK; Esc closes.
    MessageBox(QWidget* parent, const QString& title, const std::string& text, int style);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* Showing(const QString& text);

    QPlainTextEdit* view = nullptr; ///< for a long text alone
};

/// Before a dialog is shown: moves it to where it leaves a part of the screen free, if it can. An
/// empty one leaves it over the middle of its parent.
void StandClearOf(QDialog& dialog, const QRect& part);

/// The upper left corner for a box of that size that keeps off a part of the screen: over the
/// middle of the window if that is free, else right below the part, above it or beside it,
/// whichever is nearest to the middle and lies on the screen. All in the same coordinates.
QPoint CornerClearOf(const QRect& part, QSize size, const QRect& window, const QRect& screen);

} // namespace tumbledeep
