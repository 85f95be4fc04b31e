// Gathers places on the board that are to be painted anew, in tiles of a cell's size, so that
// painting costs no more for a place named twice, nor for each of many that lie side by side. What
// has changed is found by BoardLook.
#pragma once

#include <QRegion>

#include <vector>

namespace tumbledeep {

class ChangedTiles {
  public:
    /// `visible` is the part of the board that counts. All places are in device pixels.
    ChangedTiles(const QRect& visible, int scale);

    void Mark(const QRect& place);
    /// All that has been marked, and a little between and round it.
    QRegion Region() const;

  private:
    int side;                 ///< of a tile, in device pixels
    QRect tiles;              ///< those that can be seen, counted from the board's corner
    std::vector<bool> marked; ///< by rows; empty until something is
};

} // namespace tumbledeep
