// Only the first section of a name counts, and in it the first line of a key.
#include "formats/Profile.h"

#include "base/Text.h"

#include <optional>

namespace tumbledeep {

namespace {

struct Line {
    std::string_view Text; ///< without its line end
    std::size_t Start;
    std::size_t Next; ///< where the next line starts
};

std::optional<Line> LineAt(std::string_view text, std::size_t start) {
    if (start >= text.size()) return std::nullopt;
    const std::size_t feed = text.find('\n', start);
    const std::size_t next = feed == std::string_view::npos ? text.size() : feed + 1;
    std::string_view line = text.substr(start, next - start);
    if (line.ends_with('\n')) line.remove_suffix(1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return Line{line, start, next};
}

constexpr std::string_view Blanks = " \t";

bool IsHeader(std::string_view line) { return Trimmed(line, Blanks).starts_with('['); }

bool IsHeaderOf(std::string_view line, std::string_view section) {
    line = Trimmed(line, Blanks);
    return line.starts_with('[') && line.ends_with(']') &&
           SameButCase(Trimmed(line.substr(1, line.size() - 2), Blanks), section);
}

/// Where a key's line stands, or where one would be added.
struct Place {
    bool SectionFound = false;
    std::size_t AddAt = 0;
    std::optional<Line> Found;
    std::string_view Value;
};

Place Find(std::string_view text, std::string_view section, std::string_view key) {
    Place place;
    std::size_t at = text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
    while (const auto line = LineAt(text, at)) {
        at = line->Next;
        if (!place.SectionFound) {
            place.SectionFound = IsHeaderOf(line->Text, section);
            place.AddAt = line->Next;
            continue;
        }
        if (IsHeader(line->Text)) break;
        const std::size_t equals = line->Text.find('=');
        if (equals != std::string_view::npos &&
            SameButCase(Trimmed(line->Text.substr(0, equals), Blanks), key)) {
            place.Found = line;
            place.Value = line->Text.substr(equals + 1);
            break;
        }
        if (!line->Text.empty()) place.AddAt = line->Next;
    }
    return place;
}

} // namespace

std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key) {
    return std::string(Find(text, section, key).Value);
}

std::string ProfileWith(std::string_view text, std::string_view section, std::string_view key,
                        std::string_view value) {
    const Place place = Find(text, section, key);
    const std::size_t firstFeed = text.find('\n');
    const bool windowsEnds =
        firstFeed != std::string_view::npos && firstFeed > 0 && text[firstFeed - 1] == '\r';
    const std::string_view lineEnd = windowsEnds ? "\r\n" : "\n";
    std::string entry(key);
    entry.append("=").append(value.substr(0, value.find_first_of("\r\n")));

    if (place.Found) {
        const std::size_t end = place.Found->Start + place.Found->Text.size();
        return std::string(text.substr(0, place.Found->Start))
            .append(entry)
            .append(text.substr(end));
    }
    const std::size_t split = place.SectionFound ? place.AddAt : text.size();
    std::string result(text.substr(0, split));
    if (!result.empty() && result != ByteOrderMark && !result.ends_with('\n')) result += lineEnd;
    if (!place.SectionFound) result.append("[").append(section).append("]").append(lineEnd);
    return result.append(entry).append(lineEnd).append(text.substr(split));
}

} // namespace tumbledeep
