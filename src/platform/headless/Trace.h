// The lines that tell the state of a game after a step, and only what has changed since.
#pragma once

#include "shell/frmMain.h"

#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tumbledeep {

class Trace {
  public:
    using Quote = std::function<std::string(std::string_view)>;

    /// `quote` gives a text as the trace prints it.
    Trace(std::ostream& lines, Quote quote);

    /// Prints what differs from what was last printed, all of it the first time.
    void Print(const frmMain& main, std::int64_t step);

  private:
    struct SpriteLook {
        float Left;
        float Top;
        bool Visible;
        std::string Tag;
        tumbledeep::Picture Picture;
        friend bool operator==(const SpriteLook&, const SpriteLook&) = default;
    };

    void Vars(const frmMain& main);
    void Cells(const frmDocument& board);
    void Sprites(const frmDocument& board);
    void PoolSprites(std::string_view name, const Pool& pool, std::vector<SpriteLook>& last);
    void Line(std::string_view poolName, std::size_t index, const SpriteLook& look);
    void View(const frmDocument& board);
    /// The stream for a line of this step, its head printed first.
    std::ostream& Out();

    std::ostream& out;
    Quote quoted;
    std::string head; ///< the step's own line, until it is printed
    bool first = true;
    std::vector<std::string> lastVars;
    AreaGrid lastArea;
    std::array<std::vector<SpriteLook>, 12> lastSprites;
    SpriteLook lastYou{};
    std::string lastView;
};

/// The number as std::to_chars writes it in fixed notation.
std::string FixedText(float value);

} // namespace tumbledeep
