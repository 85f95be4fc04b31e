// The following view as the settings have it, at the start of each map. On the very first run the
// player is asked and the answers are stored. The menu changes it later by AutoMoveChange.
#include "base/Number.h"
#include "base/Rounding.h"
#include "base/Text.h"
#include "host/Platform.h"
#include "windows/Settings.h"
#include "windows/frmDocument.h"

namespace tumbledeep {

namespace {

ViewMode ModeFrom(double number) { return static_cast<ViewMode>(NearestTo16(number)); }

/// The mode that the player has typed, by the number that the text begins with: more than 3 gives
/// 3, 0 or no number gives 2; tests/windows/ViewTest.cpp pins it.
ViewMode ModeTyped(const std::string& text) {
    const ViewMode mode = ModeFrom(ReadNumber(text).Value);
    if (mode > ViewMode::EdgeOfScreen) return ViewMode::EdgeOfScreen;
    return mode == ViewMode::None ? ViewMode::GradualCentre : mode;
}

/// The stored mode, which is taken as it is; a text that is no number as a whole counts as 0.
ViewMode ModeStored(const std::string& text) {
    const NumberPrefix number = ReadNumber(text);
    return IsWhole(number, text) ? ModeFrom(number.Value) : ViewMode::None;
}

} // namespace

void frmDocument::ViewChoice() {
    const std::string stored = IniRead(Services, "AutoMove", "Move");
    if (!stored.empty()) {
        AutoMoveOn = SameButCase(stored, BoolText(true));
        AutoMoveMode = ModeStored(IniRead(Services, "AutoMove", "Mode"));
        return;
    }
    const int answer =
        Services.MsgBox("Do you want to the form to move automatically?", MsgBoxStyle::Question);
    AutoMoveOn = answer == MsgBoxAnswer::Yes;
    IniWrite(Services, "AutoMove", "Move", BoolText(AutoMoveOn));
    if (AutoMoveOn) {
        AutoMoveMode = ModeTyped(Services.InputBox(
            "What mode do you want, 1:Centre, 2: Gradual Centre, 3: Edge of screen"));
    }
    IniWrite(Services, "AutoMove", "Mode", std::to_string(static_cast<int>(AutoMoveMode)));
}

} // namespace tumbledeep
