// Only settings are written; the game's own start-up does the rest.
#include "platform/desktop/FirstStart.h"

#include "platform/FieldInput.h"
#include "platform/HostFiles.h"
#include "platform/Platform.h"

namespace tumbledeep {

void PrepareFirstStart(const std::filesystem::path& directory) {
    const std::filesystem::path ini = directory / "Tumbledeep.ini";
    std::error_code error;
    if (std::filesystem::exists(FindFile(ini), error)) return;
    try {
        FieldInput list(ReadFile(FindFile(directory / "Default.TBL")));
        if (list.AtEnd()) return;
        WriteProfile("Level", "LOAD", list.Next() + ".TBM", ProgramPath(ini));
        WriteProfile("Level", "MAPLIST", "Default", ProgramPath(ini));
    } catch (const Failure&) {
        // No list lies there: the game asks for a map.
    }
}

} // namespace tumbledeep
