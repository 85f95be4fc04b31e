// The sums behind the scale.
#include "desktop/ScreenScale.h"

#include "pictures/Bitmap.h"
#include "pictures/DevicePixels.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

constexpr int CellsAcross = 40;
constexpr int CellsDown = 28;
/// In pixels of the game; a sprite is a pixel larger, so that neighbours overlap.
constexpr int CellPitch = Bitmap::Size - 1;
/// What the parent's own parts take of its outer size, as the game's view reckons.
constexpr float ParentFrame = 1080;

} // namespace

QSize RoomForCells(int scale) {
    return {(CellsAcross * CellPitch + 1) * scale, (CellsDown * CellPitch + 1) * scale};
}

int BestScale(QSize deviceRoom, double ratio) {
    const QSize cells = RoomForCells(1);
    const int fits =
        std::min(deviceRoom.width() / cells.width(), deviceRoom.height() / cells.height());
    const int least = std::max(1, static_cast<int>(std::lround(ratio)));
    return std::clamp(fits, least, LargestScale);
}

float PlaceInParent(float place, float boardSize, float you, float parentBefore, float parentNow,
                    float raised) {
    if (parentNow - ParentFrame > boardSize) return parentNow / 2 - boardSize / 2 - raised;
    return (place + you) / parentBefore * parentNow - you;
}

} // namespace tumbledeep
