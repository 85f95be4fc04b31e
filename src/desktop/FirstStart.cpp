// Looks for settings and a list in the program's directory, and writes the two settings that a
// first start is without.
#include "desktop/FirstStart.h"

#include "base/Failure.h"
#include "formats/MapList.h"
#include "host/HostFiles.h"

namespace tumbledeep {

void PrepareFirstStart(const std::filesystem::path& directory) {
    const std::filesystem::path ini = directory / "Tumbledeep.ini";
    std::error_code error;
    if (std::filesystem::exists(FindFile(ini), error)) return;
    try {
        const auto list = ReadMapList(ReadFile(FindFile(directory / "Default.TBL")));
        if (list.empty()) return;
        WriteProfile("Level", "LOAD", list.front().Text + ".TBM", ProgramPath(ini));
        WriteProfile("Level", "MAPLIST", "Default", ProgramPath(ini));
    } catch (const Failure&) {
        // No list lies there: the game asks for a map.
    }
}

} // namespace tumbledeep
