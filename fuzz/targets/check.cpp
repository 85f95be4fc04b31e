// Any bytes as a file of a map author's, with all the checks there are. The input is M for a map, P
// for a text picture or L for a list, and behind it the bytes of the file.
#include "Sandbox.h"
#include "Target.h"

#include "map/check/Checks.h"

#include <algorithm>
#include <stdexcept>

namespace tumbledeep {

void Fuzz(std::string_view bytes) {
    static const Sandbox sandbox;
    if (bytes.empty()) return;
    const char sort = bytes.front();
    bytes.remove_prefix(1);
    // A list names files that are looked for.
    const bool stays = StaysInside(bytes) && bytes.find_first_of("/\\") == std::string_view::npos;
    if (sort == 'L' && !stays) return;
    const std::string name = sort == 'L' ? "x.TBL" : sort == 'M' ? "x.TBM" : "x.txt";
    sandbox.Clear();
    sandbox.Write(name, bytes);
    try {
        const Findings found = CheckFile((sandbox.Path / name).string());
        Hold(std::ranges::is_sorted(found, {}, &Finding::Line), "findings stand by rising lines");
        const bool inFile = std::ranges::all_of(found, [&bytes](const Finding& finding) {
            return finding.Line <= static_cast<int>(bytes.size()) + 1;
        });
        Hold(inFile, "a finding is about a line of the file");
    } catch (const std::runtime_error&) {
        // What can't be read is refused.
    }
}

} // namespace tumbledeep
