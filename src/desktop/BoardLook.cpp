// How the sprites are compared with those last seen, a chunk of a pool at a time. A layer is a
// place in the order of painting.
#include "desktop/BoardLook.h"

#include "desktop/Places.h"

#include <algorithm>

namespace tumbledeep {

namespace {

static_assert(PaintedCount <= MostLayers && Pool::Limit <= 1 << IndexBits);

QPoint IndexedCorner(const Sprite& sprite) { return SpriteCorner(sprite, 1); }

/// The corners, in pixels of the game, of all sprites that can reach into a part of it. Rounding to
/// device pixels moves a sprite by up to a pixel on either side, and another is to spare.
QRect CornersOf(const QRect& part, int scale) {
    constexpr int slack = 2;
    const int reach = SpriteSide(1) - 1 + slack;
    return {QPoint(part.left() / scale - reach, part.top() / scale - reach),
            QPoint(part.right() / scale + slack, part.bottom() / scale + slack)};
}

} // namespace

void BoardLook::Update(Board& board, int scale, ChangedTiles& changes) {
    for (std::size_t layer = 0; layer < PaintedCount; ++layer) {
        const Kind kind = PaintOrder()[layer];
        if (kind == Kind::You) {
            layers[layer].resize(1);
            Take(layer, 0, board.You, scale, changes);
            continue;
        }
        Pool& pool = board.Pools[kind];
        const Pool::Chunks chunks = pool.TakeChanges();
        if (chunks.none()) continue;
        layers[layer].resize(static_cast<std::size_t>(pool.Count()));
        for (int begin = 0; begin < pool.Count(); begin += Pool::ChunkSize) {
            if (!chunks[static_cast<std::size_t>(begin / Pool::ChunkSize)]) continue;
            const int end = std::min(begin + Pool::ChunkSize, pool.Count());
            for (int i = begin; i < end; ++i) Take(layer, i, pool[i], scale, changes);
        }
    }
}

void BoardLook::Take(std::size_t layer, int i, const Sprite& now, int scale,
                     ChangedTiles& changes) {
    Sprite& before = layers[layer][static_cast<std::size_t>(i)];
    if (before == now) return;
    const SpriteNumber number = NumberOf(layer, i);
    if (before.Visible) {
        byPlace.Remove(number, IndexedCorner(before));
        changes.Mark(SpriteRect(before, scale));
    }
    if (now.Visible) {
        byPlace.Add(number, IndexedCorner(now));
        changes.Mark(SpriteRect(now, scale));
    }
    before = now;
}

std::vector<BoardLook::Shown> BoardLook::Within(const QRect& part, int scale) const {
    std::vector<Shown> found;
    for (const SpriteNumber number : byPlace.Near(CornersOf(part, scale))) {
        const std::size_t layer = LayerOf(number);
        const Sprite& sprite = layers[layer][IndexOf(number)];
        const QRect place = SpriteRect(sprite, scale);
        if (place.intersects(part)) {
            found.push_back({PaintOrder()[layer], sprite.Look, place.topLeft()});
        }
    }
    return found;
}

} // namespace tumbledeep
