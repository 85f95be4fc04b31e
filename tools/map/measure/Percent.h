// How a share is told in reports.
#pragma once

#include <cmath>
#include <string>

namespace tumbledeep {

/// A part of one as "12 in 100".
inline std::string Percent(double part) {
    return std::to_string(std::lround(part * 100)) + " in 100";
}

} // namespace tumbledeep
