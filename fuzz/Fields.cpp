// Plain cutting at NULs and line feeds.
#include "Fields.h"

#include <algorithm>

namespace tumbledeep {

namespace {

std::string TakeUpTo(std::string_view& bytes, char end) {
    const std::size_t length = std::min(bytes.find(end), bytes.size());
    std::string part(bytes.substr(0, length));
    bytes.remove_prefix(std::min(length + 1, bytes.size()));
    return part;
}

} // namespace

std::string TakeField(std::string_view& bytes) { return TakeUpTo(bytes, '\0'); }

std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) lines.push_back(TakeUpTo(text, '\n'));
    return lines;
}

} // namespace tumbledeep
