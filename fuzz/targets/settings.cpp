// Any bytes as settings, and one value written into them. The input is a digit for the key, the
// value up to a NUL, and the settings' text. What a write must not touch is compared line by line.
#include "Fields.h"
#include "Target.h"

#include "base/Text.h"
#include "formats/Profile.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

using Line = ProfileLine;

struct Name {
    const char *Section, *Key;
};
constexpr std::array<Name, 5> Names{{{"Level", "LOAD"},
                                     {"Level", "MAPLIST"},
                                     {"Level", "STARTMAP"},
                                     {"AutoMove", "MOVE"},
                                     {"AutoMove", "MODE"}}};

bool IsOurs(const Name& name, std::string_view section, std::string_view key) {
    return SameButCase(section, name.Section) && SameButCase(key, name.Key);
}

std::vector<Line> Lines(std::string_view text) {
    std::vector<Line> lines;
    for (std::size_t at = FirstProfileLine(text); at < text.size(); at = lines.back().Next) {
        lines.push_back(ReadProfileLine(text, at));
    }
    return lines;
}

/// The lines with their ends, as they stand, an end set behind the last one if it has none.
std::vector<std::string> WholeLines(const std::string& text) {
    std::vector<std::string> whole;
    for (const Line& line : Lines(text)) {
        whole.emplace_back(text.substr(line.Start, line.Next - line.Start));
    }
    return whole;
}

void OthersStandAsTheyStood(const std::string& before, const std::string& after) {
    const std::vector<std::string> was = WholeLines(before);
    const std::vector<std::string> is = WholeLines(after);
    Hold(is.size() >= was.size() && is.size() <= was.size() + 2,
         "one line is written, or a section");
    const auto differ = std::ranges::mismatch(was, is);
    auto old = differ.in1;
    auto fresh = differ.in2;
    if (old != was.end() && old + 1 == was.end() && fresh->starts_with(*old) &&
        is.size() > was.size()) {
        // A last line that had no end has got one.
        ++old;
        ++fresh;
    }
    fresh += is.size() == was.size() ? 0 : static_cast<std::ptrdiff_t>(is.size() - was.size());
    if (is.size() == was.size() && old != was.end()) {
        ++old;
        ++fresh;
    }
    Hold(std::equal(old, was.end(), fresh, is.end()), "lines not asked for stay byte for byte");
}

/// Of the first few keys, as each takes two looks through the text.
void OthersReadAsTheyRead(const Name& name, const std::string& before, const std::string& after) {
    std::string_view section;
    int left = 5;
    for (const Line& line : Lines(before)) {
        if (line.What == Line::Is::Section) section = line.Name;
        if (line.What != Line::Is::Value || IsOurs(name, section, line.Name)) continue;
        if (left-- == 0) return;
        Hold(ProfileValue(before, section, line.Name) == ProfileValue(after, section, line.Name),
             "the other keys read as before");
    }
}

} // namespace

void Fuzz(std::string_view bytes) {
    const std::string head = TakeField(bytes);
    const std::string before(bytes);
    const Name& name = Names.at(head.empty() ? 0 : static_cast<unsigned char>(head[0]) % 5);
    const std::string value = head.empty() ? "" : head.substr(1);

    const std::string after = ProfileWith(before, name.Section, name.Key, value);
    Hold(ProfileValue(after, name.Section, name.Key) ==
             value.substr(0, value.find_first_of("\r\n")),
         "what is written reads back");
    Hold(ProfileWith(after, name.Section, name.Key, value) == after,
         "writing twice is writing once");
    OthersStandAsTheyStood(before, after);
    OthersReadAsTheyRead(name, before, after);
}

} // namespace tumbledeep
