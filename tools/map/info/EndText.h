// How a run's end is called in what the tools print.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

constexpr const char* EndText(Outcome end) {
    if (end == Outcome::Running) return "running";
    return end == Outcome::Won ? "won" : "died";
}

} // namespace tumbledeep
