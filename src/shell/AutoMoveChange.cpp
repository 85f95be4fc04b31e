// The following view as the menu sets it.
#include "board/frmDocument.h"
#include "maps/Module1.h"

namespace tumbledeep {

void frmDocument::AutoMoveChange(bool on, std::int16_t mode) {
    AutoMoveOn = on;
    if (mode > 0) AutoMoveMode = mode;
    const std::string ini = SettingsFile(Services);
    IniWrite(Services, "AutoMove", "Move", BoolText(AutoMoveOn), ini);
    IniWrite(Services, "AutoMove", "Mode", std::to_string(AutoMoveMode), ini);
}

} // namespace tumbledeep
