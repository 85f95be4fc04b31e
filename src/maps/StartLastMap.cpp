// The setting that decides whether a start plays the last map.
#include "board/frmDocument.h"
#include "maps/Module1.h"

namespace tumbledeep {

void frmDocument::StartLastMap(bool on) {
    IniWrite(Services, "Level", "StartMap", BoolText(on), SettingsFile(Services));
}

} // namespace tumbledeep
