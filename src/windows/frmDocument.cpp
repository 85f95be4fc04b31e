// The events of the board's window: its timer, its text field, its focus, its mouse. A pause by a
// key, one by a click and one by a lost focus do not know of each other: any of them may end
// another's. What follows the end of a map is in flow/, how the view follows is in view/.
#include "windows/frmDocument.h"

#include "host/Platform.h"
#include "windows/frmMain.h"

namespace tumbledeep {

frmDocument::frmDocument(frmMain& parent, Platform& services) : Parent(parent), Services(services) {
    Form.Caption = "Area";
}

void frmDocument::Interval100Timer_Timer() {
    // The view flips by where the player was before this tick moves anything.
    const bool flips = AutoMoveOn && AutoMoveMode == ViewMode::EdgeOfScreen;
    if (flips && NextTick() % RecountPeriod == 0) ViewEdgeTick();
    const Outcome outcome = Tick(ArrowKeys);
    if (TickCount % StatusPeriod == 0 && GemsShown) {
        const std::string number = std::to_string(*GemsShown);
        Parent.Info.Panel = "Gems Remaining: " + (*GemsShown < 0 ? number : " " + number);
    }
    if (outcome != Outcome::Running) EndMap(outcome);
    NudgeView();
    ViewTick();
}

void frmDocument::Input_Box_Change() {
    if (Input_Box.Text.empty()) return;
    const std::string key = Input_Box.Text;
    MoveYou(key);
}

void frmDocument::MoveYou(std::string_view key) {
    // The change event that this fires finds an empty text and does nothing.
    Input_Box.Text.clear();
    Board::MoveYou(key);
    NudgeView();
}

void frmDocument::Form_GotFocus() { Interval100Timer.Enabled = true; }

void frmDocument::Form_LostFocus() { Interval100Timer.Enabled = false; }

void frmDocument::Form_MouseDown(int button) {
    if (button == LeftButton) Interval100Timer.Enabled = !Interval100Timer.Enabled;
}

void frmDocument::Form_MouseMove(int button) {
    if (button == LeftButton) Services.DragBoard();
}

} // namespace tumbledeep
