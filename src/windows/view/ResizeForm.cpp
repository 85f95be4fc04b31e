// The size of the board's window, by the map's walls and dirt, and its place at a map's start.
// Where it goes from there is up to the three modes of the following view in the files beside this
// one.
#include "windows/frmMain.h"

namespace tumbledeep {

namespace {

// All in twips. The parent's size is its outer one, so room is left for its frame, menu and bars.

/// A board fits on an axis if it leaves more than this of the parent's size free.
constexpr float Frame = 1080;
/// A board that fits is centred across; down, it lies this much higher than centred.
constexpr float Raised = 720;
/// A board that does not fit begins this far from the parent's left or upper edge.
constexpr float EdgeGap = 180;
/// Or it ends this far from the right edge; from the lower edge it is Frame and EdgeGap.
constexpr float FarGapAcross = 540;

/// Lays a board that does not fit on one axis: to the parent's edge if the player stands near one
/// of the map's edges, the far one winning. Else it stays where CentreOnYou has put it, with the
/// player in the middle; tests/windows/ViewTest.cpp pins it.
void LayAtEdge(float parentSize, float you, float boardSize, float atFarEdge, float& place) {
    if (parentSize / 2 > you) place = EdgeGap;
    if (parentSize / 2 > boardSize - you) place = atFarEdge;
}

} // namespace

void frmDocument::ResizeForm() {
    const MapEdges edges = MeasureMap();
    Form.Height = edges.MapBottom;
    Form.Width = edges.MapRight;
    const Window& parent = Parent.Form;
    if (parent.Height - Frame > Form.Height) {
        ViewMovesY = false;
        Form.Top = parent.Height / 2 - Form.Height / 2 - Raised;
    } else {
        LayAtEdge(parent.Height, You.Top, Form.Height,
                  parent.Height - Frame - Form.Height - EdgeGap, Form.Top);
    }
    if (parent.Width - Frame > Form.Width) {
        ViewMovesX = false;
        Form.Left = parent.Width / 2 - Form.Width / 2;
    } else {
        LayAtEdge(parent.Width, You.Left, Form.Width, parent.Width - Form.Width - FarGapAcross,
                  Form.Left);
    }
}

} // namespace tumbledeep
