// The loader as the windows have it: the lines of a map with their titles, then the set-up of board
// and view. How a line becomes a sprite is formats/LoadMap.cpp's, how the grid is filled
// rules/SetUp.cpp's.
#include "formats/LoadMap.h"
#include "host/Platform.h"
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

/// Some milliseconds of work.
constexpr std::int64_t RecordsBetweenNews = 10'000;

} // namespace

void frmMain::LoadNewMap(FieldInput map) {
    for (std::int64_t records = 1; !map.AtEnd(); ++records) {
        if (records % RecordsBetweenNews == 0) Services.Loading(map.Share());
        const MapLine line = ReadMapLine(map.Next());
        // A title in the middle of a file stops the loading there until it is answered.
        if (line.What == MapLine::Is::Title) Services.MsgBox(line.Text, MsgBoxStyle::Ok);
        PutOnBoard(ActiveChild, line);
        if (line.Which == Kind::You) ActiveChild.CentreOnYou();
    }
    // ResetStart comes last: it sets view flags that ResizeForm may have cleared.
    ActiveChild.ResetArea();
    ActiveChild.ResizeForm();
    ActiveChild.ResetStart();
}

void frmDocument::CentreOnYou() {
    Form.Top = Parent.Form.Height / 2.0F - You.Top;
    Form.Left = Parent.Form.Width / 2.0F - You.Left;
}

void frmDocument::ResetStart() {
    ViewMovesX = true;
    ViewMovesY = true;
    AutoMoveMode = ViewMode::GradualCentre;
    Board::ResetStart(Services.Seed());
    ViewChoice();
}

} // namespace tumbledeep
