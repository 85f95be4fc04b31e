// The bar is written over itself on standard error.
#include "map/bots/Progress.h"

#include <algorithm>
#include <iostream>
#include <unistd.h>
#include <utility>

namespace tumbledeep {

namespace {
constexpr std::string_view ToLineStart = "\r\x1b[K";
}

Progress::Progress(std::string name) : subject(std::move(name)), isShown(isatty(STDERR_FILENO)) {}

Progress::~Progress() {
    if (isShown) std::cerr << ToLineStart << std::flush;
}

void Progress::Show(double done, const std::string& what) {
    if (!isShown) return;
    const std::lock_guard guard(mutex);
    constexpr int width = 24;
    const int filled = static_cast<int>(std::clamp(done, 0.0, 1.0) * width);
    std::string bar(static_cast<std::size_t>(filled), '#');
    bar.resize(width, '.');
    std::string line = subject + " [" + bar + "] " + what;
    if (line == last) return;
    std::cerr << ToLineStart << line << std::flush;
    last = std::move(line);
}

} // namespace tumbledeep
