// The legend that F1 shows: every picture with its name and what it does, and all keys.
#pragma once

#include <QDialog>

namespace tumbledeep {

class Legend final : public QDialog {
  public:
    /// The pictures are drawn at so many device pixels to a pixel of the game, the screen's room
    /// allowing. Esc and F1 close it.
    Legend(QWidget* parent, int scale);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tumbledeep
