// Looks for settings and a list in the program's directory, and writes the two settings that a
// first start is without.
#include "desktop/FirstStart.h"

#include "base/Failure.h"
#include "formats/FieldInput.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "windows/Settings.h"

namespace tumbledeep {

void PrepareFirstStart(Platform& platform, const GameFolders& folders) {
    std::error_code error;
    if (std::filesystem::exists(FindFile(folders.Own / SettingsName), error)) return;
    try {
        FieldInput list(ReadFile(folders.Find(folders.Own / DefaultListName)));
        if (list.AtEnd()) return;
        IniWrite(platform, "Level", "Load", list.Next().Text + ".TBM");
        IniWrite(platform, "Level", "MapList", "Default");
    } catch (const Failure&) {
        // No list lies there: the game asks for a map.
    }
}

} // namespace tumbledeep
