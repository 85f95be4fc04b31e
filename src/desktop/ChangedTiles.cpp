// How marked tiles become few rectangles, a row of tiles at a time.
#include "desktop/ChangedTiles.h"

#include <algorithm>

namespace tumbledeep {

namespace {

constexpr int CellSide = 24; // in pixels of the game

/// Up to so many tiles between two marked ones of a row are painted along with them: that takes
/// less time than one more rectangle does.
constexpr int WidestGap = 8;

/// What lies left of the board or above it counts for its first tiles.
QRect TilesUnder(const QRect& place, int side) {
    return {QPoint(place.left() / side, place.top() / side),
            QPoint(place.right() / side, place.bottom() / side)};
}

} // namespace

ChangedTiles::ChangedTiles(const QRect& visible, int scale)
    : side(CellSide * scale), tiles(visible.isEmpty() ? QRect() : TilesUnder(visible, side)) {}

void ChangedTiles::Mark(const QRect& place) {
    const QRect seen = TilesUnder(place, side) & tiles;
    if (seen.isEmpty()) return;
    marked.resize(static_cast<std::size_t>(tiles.width()) *
                  static_cast<std::size_t>(tiles.height()));
    const QRect at = seen.translated(-tiles.topLeft());
    for (std::ptrdiff_t row = at.top(); row <= at.bottom(); ++row) {
        const auto begin = marked.begin() + row * tiles.width() + at.left();
        std::fill(begin, begin + at.width(), true);
    }
}

QRegion ChangedTiles::Region() const {
    std::vector<QRect> runs;
    for (std::size_t i = 0; i < marked.size(); ++i) {
        if (!marked[i]) continue;
        const int at = static_cast<int>(i);
        const QRect tile(tiles.left() + at % tiles.width(), tiles.top() + at / tiles.width(), 1, 1);
        if (!runs.empty() && runs.back().top() == tile.top() &&
            tile.left() - runs.back().right() <= WidestGap + 1) {
            runs.back().setRight(tile.right());
        } else {
            runs.push_back(tile);
        }
    }
    for (QRect& run : runs) run = {run.topLeft() * side, run.size() * side};
    // In rows from the top and disjoint, as the toolkit wants them.
    QRegion region;
    region.setRects(runs.data(), static_cast<int>(runs.size()));
    return region;
}

} // namespace tumbledeep
