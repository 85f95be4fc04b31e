// Games for the benchmarks, each set up from the text of a map.
#pragma once

#include "platform/headless/Script.h"
#include "platform/headless/ScriptedPlatform.h"
#include "shell/frmMain.h"

#include <functional>
#include <sstream>
#include <string>

namespace tumbledeep {

/// A game on a platform without a window, whose questions are all answered with No.
struct Bench {
    Script Answers;
    std::ostringstream Lines;
    ScriptedPlatform Services;
    frmMain Game{Services};

    /// Throws Failure if the map does not load.
    explicit Bench(const std::string& map);
    frmDocument& Board() { return Game.ActiveChild; }
};

/// The text of a square map of `size` by `size` cells, closed by walls, with `line` for what
/// stands in each cell inside: a keyword and, for mines, a tag; "" for nothing.
struct Object {
    std::string Keyword;
    std::string Tag;
};
std::string MapOf(int size, const std::function<Object(int col, int row)>& inside);

} // namespace tumbledeep
