// A settings text is read into lines, each with its place in the text; a change puts one line in
// the place of another.
#include "formats/Profile.h"

#include "base/Text.h"

#include <optional>

namespace tumbledeep {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view LineEnds = "\r\n";

/// Says what a line is, by its text without its end.
void Tell(ProfileLine& line, std::string_view text) {
    const std::string_view trimmed = Trimmed(text, Blanks);
    const std::size_t bracket = trimmed.find(']');
    if (trimmed.starts_with('[') && bracket != std::string_view::npos) {
        line.What = ProfileLine::Is::Section;
        line.Name = Trimmed(trimmed.substr(1, bracket - 1), Blanks);
        return;
    }
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || text.starts_with(';')) return;
    line.What = ProfileLine::Is::Value;
    line.Name = Trimmed(text.substr(0, equals), Blanks);
    line.Value = text.substr(equals + 1);
}

/// Where a key's line stands, or where one would be added.
struct KeyPlace {
    std::optional<ProfileLine> Found;
    bool InSection = false;
    std::size_t AddAt = 0;
};

KeyPlace Find(std::string_view text, std::string_view section, std::string_view key) {
    KeyPlace place;
    place.AddAt = text.size();
    ProfileLine line;
    line.Next = FirstProfileLine(text);
    while (line.Next < text.size()) {
        line = ReadProfileLine(text, line.Next);
        if (!place.InSection) {
            place.InSection =
                line.What == ProfileLine::Is::Section && SameButCase(line.Name, section);
            if (place.InSection) place.AddAt = line.Next;
            continue;
        }
        if (line.What == ProfileLine::Is::Section) break;
        if (line.What == ProfileLine::Is::Value && SameButCase(line.Name, key)) {
            place.Found = line;
            break;
        }
        if (line.End > line.Start) place.AddAt = line.Next;
    }
    return place;
}

/// How the first line ends; LF where none has an end.
std::string_view LineEndOf(std::string_view text) {
    const std::size_t end = text.find_first_of(LineEnds);
    if (end == std::string_view::npos) return "\n";
    return text.substr(end, text.substr(end, 2) == "\r\n" ? 2 : 1);
}

} // namespace

std::size_t FirstProfileLine(std::string_view text) {
    return text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
}

ProfileLine ReadProfileLine(std::string_view text, std::size_t start) {
    ProfileLine line;
    line.Start = start;
    line.End = std::min(text.find_first_of(LineEnds, start), text.size());
    const std::size_t end = text.substr(line.End, 2) == "\r\n" ? 2 : 1;
    line.Next = std::min(line.End + end, text.size());
    Tell(line, text.substr(line.Start, line.End - line.Start));
    return line;
}

std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key) {
    const KeyPlace place = Find(text, section, key);
    return place.Found ? std::string(place.Found->Value) : "";
}

std::string ProfileWith(std::string_view text, std::string_view section, std::string_view key,
                        std::string_view value) {
    const KeyPlace place = Find(text, section, key);
    std::string entry(key);
    value = value.substr(0, value.find_first_of(LineEnds)).substr(0, LongestStoredValue);
    entry.append("=").append(value);
    if (place.Found) {
        return std::string(text.substr(0, place.Found->Start))
            .append(entry)
            .append(text.substr(place.Found->End));
    }
    const std::string_view lineEnd = LineEndOf(text);
    std::string result(text.substr(0, place.AddAt));
    const bool lineIsOpen = !result.empty() && result != ByteOrderMark &&
                            LineEnds.find(result.back()) == std::string_view::npos;
    if (lineIsOpen) result += lineEnd;
    if (!place.InSection) result.append("[").append(section).append("]").append(lineEnd);
    return result.append(entry).append(lineEnd).append(text.substr(place.AddAt));
}

} // namespace tumbledeep
