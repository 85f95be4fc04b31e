// What of the board is shown: the sprites as they were when last looked at. Looking again costs
// time by what has changed since, finding what lies in a part of the board by what lies there. The
// painting is BoardCanvas's.
#pragma once

#include "desktop/ChangedTiles.h"
#include "desktop/SpriteIndex.h"
#include "pictures/Catalogue.h"
#include "windows/frmDocument.h"

#include <array>
#include <vector>

namespace tumbledeep {

/// Part of the board's own surface: a kind of shape, or the player.
inline bool IsSurface(Kind kind) { return kind == Kind::You || RowOf(kind).IsShape; }

class BoardLook {
  public:
    /// Something shown on the board, a sprite or the player.
    struct Shown {
        Kind Which;
        Picture Look;
        QPoint Corner; ///< in device pixels on the board, as are all places here
    };

    /// Looks at the board, and marks where its look has changed since the last time.
    void Update(Board& board, int scale, ChangedTiles& changes);

    /// All that lies in a part of the board, in the order of painting.
    std::vector<Shown> Within(const QRect& part, int scale) const;

  private:
    void Take(std::size_t layer, int i, const Sprite& now, int scale, ChangedTiles& changes);

    std::array<std::vector<Sprite>, PaintedCount> layers; ///< as in PaintOrder
    SpriteIndex byPlace; ///< of those that are visible; in pixels of the game, for every scale
};

} // namespace tumbledeep
