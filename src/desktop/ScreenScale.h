// How large a pixel of the game is on a screen, and how large a window that asks for: room for 40
// by 28 cells, which is most of the maps that ship.
#pragma once

#include "windows/Window.h"

#include <QSize>

namespace tumbledeep {

/// The room for 40 by 28 cells in device pixels, `scale` of them to a pixel of the game.
QSize RoomForCells(int scale);

/// The largest whole scale at which that fits into so many device pixels; but no less than the
/// screen's own ratio of device pixels to logical ones, rounded, and at most LargestScale.
int BestScale(QSize deviceRoom, double ratio);

/// Where the board's window belongs, along one axis, after its parent has become smaller or larger
/// in twips: over the middle if it fits, else with the player at the same share of the parent as
/// before. `raised` is how much higher than the middle it lies there; all in twips.
float PlaceInParent(float place, float boardSize, float you, float parentBefore, float parentNow,
                    float raised);

} // namespace tumbledeep
