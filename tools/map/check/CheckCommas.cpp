// Commas that end a line where its author has not thought of it. The parts of one line make one
// finding.
#include "map/check/Checks.h"

#include "base/Number.h"

#include <algorithm>
#include <span>

namespace tumbledeep {

namespace {

bool SaysNothing(const MapLine& line) { return line.What == MapLine::Is::Nothing; }

/// The first part behind a comma that says something, or else the first with a text; 0 for none.
std::size_t TellingPart(std::span<const MapLine> parts, std::span<const Record> records) {
    for (std::size_t i = 1; i < parts.size(); ++i) {
        if (!SaysNothing(parts[i])) return i;
    }
    if (SaysNothing(parts[0])) return 0; // a comment
    for (std::size_t i = 1; i < parts.size(); ++i) {
        if (!records[i].Text.empty()) return i;
    }
    return 0;
}

/// Looks at one line of the file, cut into parts.
void CheckParts(Findings& found, std::span<const MapLine> parts, std::span<const Record> records) {
    const std::size_t telling = TellingPart(parts, records);
    if (telling == 0) return;
    const bool allObjects = std::ranges::all_of(
        parts, [](const MapLine& part) { return part.What == MapLine::Is::Object && !part.Fault; });
    const std::string_view text = records[telling].Text;
    const bool cutsNumbers = parts[0].What == MapLine::Is::Object && ReadNumber(text).Length > 0;
    const bool hasQuote = records[0].Text.find('"') != std::string::npos;
    const bool says = !SaysNothing(parts[telling]);
    Finding finding = Warning(parts[telling].Line,
                              {"the comma ends the line, and ", Quoted(text),
                               says ? " is read as a line of its own" : " is lost"},
                              {allObjects    ? "write each object on a line of its own"
                               : cutsNumbers ? "write a blank between numbers, a point in one"
                               : hasQuote ? "put the whole line in double quotes, with none inside"
                                          : "put the whole line in double quotes"});
    if ((says || cutsNumbers) && !allObjects) finding.Weight = Severity::Error;
    found.push_back(finding);
}

} // namespace

Findings CheckCommas(const CheckedMap& map) {
    Findings found;
    const std::span<const MapLine> lines = map.Lines;
    const std::span<const Record> records = map.Source.Lines;
    for (std::size_t first = 0; first < lines.size();) {
        std::size_t end = first + 1;
        while (end < lines.size() && map.Ends[end - 1].ByComma) ++end;
        CheckParts(found, lines.subspan(first, end - first), records.subspan(first, end - first));
        first = end;
    }
    return found;
}

} // namespace tumbledeep
