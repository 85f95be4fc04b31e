// The status bar: the game's own panel at its left end, beside it what the player should do, and at
// the right end what the front end tells. What stands in each place is GameWindow's.
#pragma once

#include <array>
#include <string>

class QLabel;
class QMainWindow;

namespace tumbledeep {

/// A place in the status bar, from left to right.
enum class StatusPlace { Panel, Advice, Note, CapsLock, Map };
inline constexpr std::size_t StatusPlaceCount = 5;

class StatusLine {
  public:
    /// Fills the status bar of a window, which must outlive it.
    explicit StatusLine(QMainWindow& window);

    /// Shows a text in UTF-8 at a place; "" leaves it empty. Costs next to nothing if it stands
    /// there already.
    void Show(StatusPlace place, const std::string& text);

  private:
    std::array<QLabel*, StatusPlaceCount> labels{};
    std::array<std::string, StatusPlaceCount> shown;
};

} // namespace tumbledeep
