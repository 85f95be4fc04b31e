// The lines that tell the state of a game after a step: variables, cells, sprites, the view. Only
// what has changed since the last time is printed, so a trace is the whole course of a game. Lines
// of what happens in between, such as boxes, are ScriptedPlatform.h's; docs/SCRIPT.md tells all of
// them.
#pragma once

#include "windows/frmMain.h"

#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tumbledeep {

class Trace {
  public:
    using Quote = std::function<std::string(std::string_view)>;

    /// Prints to `lines`, which must outlive it. `quote` puts a text in the quotes of the trace.
    Trace(std::ostream& lines, Quote quote);

    /// Prints what differs from what was last printed, the first time all of it; no line at all
    /// when nothing differs.
    void Print(const frmMain& main, std::int64_t step);

  private:
    void Vars(const frmMain& main);
    void Cells(const frmDocument& board);
    void Sprites(const frmDocument& board);
    void PoolSprites(std::string_view name, const Pool& pool, std::vector<Sprite>& last);
    void Line(std::string_view poolName, int index, const Sprite& sprite, std::string_view tag);
    void View(const frmDocument& board);
    /// The stream for a line of this step, its head printed first.
    std::ostream& Out();

    std::ostream& out;
    Quote quoted;
    std::string head; ///< the step's own line, until it is printed
    bool first = true;
    std::vector<std::string> lastVars;
    AreaGrid lastArea;
    std::array<std::vector<Sprite>, PoolCount> lastSprites; ///< by the order of the kinds
    Sprite lastYou{};
    std::string lastView;
};

} // namespace tumbledeep
