// The following view as the menu sets it, here and in the settings. At the start it is ViewChoice
// that takes it from there.
#include "windows/Settings.h"
#include "windows/frmDocument.h"

namespace tumbledeep {

void frmDocument::AutoMoveChange(bool on, ViewMode mode) {
    AutoMoveOn = on;
    if (mode > ViewMode::None) AutoMoveMode = mode;
    IniWrite(Services, "AutoMove", "Move", BoolText(AutoMoveOn));
    IniWrite(Services, "AutoMove", "Mode", std::to_string(static_cast<int>(AutoMoveMode)));
}

} // namespace tumbledeep
