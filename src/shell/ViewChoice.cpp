// The following view as the settings have it; on the very first run the player is asked.
#include "board/frmDocument.h"
#include "maps/Module1.h"
#include "platform/AsciiCase.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

/// The nearest whole number that a mode can hold.
std::int16_t ModeFrom(double value) {
    return static_cast<std::int16_t>(std::nearbyint(std::clamp(value, -32768.0, 32767.0)));
}

} // namespace

void frmDocument::ViewChoice() {
    const std::string ini = SettingsFile(Services);
    AutoMoveText = IniRead(Services, "AutoMove", "Move", ini);
    if (!AutoMoveText.empty()) {
        AutoMoveOn = SameButCase(AutoMoveText, "True");
        const std::string mode = IniRead(Services, "AutoMove", "Mode", ini);
        const NumberPrefix number = ReadNumber(mode);
        const bool whole = mode.find_first_not_of(' ', number.Length) == std::string::npos;
        AutoMoveMode = whole ? ModeFrom(number.Value) : std::int16_t{0};
        return;
    }

    Answer = static_cast<std::int16_t>(
        Services.MsgBox("Do you want to the form to move automatically?", MsgBoxStyle::Question));
    AutoMoveOn = Answer == MsgBoxAnswer::Yes;
    IniWrite(Services, "AutoMove", "Move", BoolText(AutoMoveOn), ini);
    if (AutoMoveOn) {
        AutoMoveMode = ModeFrom(ReadNumber(Services.InputBox("What mode do you want, 1:Centre, 2: "
                                                             "Gradual Centre, 3: Edge of screen"))
                                    .Value);
        if (AutoMoveMode > 3) AutoMoveMode = 3;
        if (AutoMoveMode == 0) AutoMoveMode = 2;
    }
    IniWrite(Services, "AutoMove", "Mode", std::to_string(AutoMoveMode), ini);
}

} // namespace tumbledeep
