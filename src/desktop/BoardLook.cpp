// How twips become device pixels, and how sprites are compared with those last shown. Whole pools
// are compared first, as nothing has changed in most of them.
#include "desktop/BoardLook.h"

#include "pictures/Bitmap.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tumbledeep {

namespace {

/// Beyond any screen; keeps the arithmetic of rectangles far from its limits.
constexpr float FarAway = 10'000'000;

} // namespace

int ToDevice(float twips, int scale) {
    const float device = std::floor(twips / TwipsPerPixel * static_cast<float>(scale) + 0.5F);
    return static_cast<int>(std::clamp(device, -FarAway, FarAway));
}

QRect SpriteRect(float left, float top, int scale) {
    const int size = Bitmap::Size * scale;
    return {ToDevice(left, scale), ToDevice(top, scale), size, size};
}

QRect BoardRect(const frmDocument& board, int scale) {
    return {ToDevice(board.Form.Left, scale), ToDevice(board.Form.Top, scale),
            std::max(0, ToDevice(board.Form.Width, scale)),
            std::max(0, ToDevice(board.Form.Height, scale))};
}

namespace {

bool SameAll(const Pool& pool, const std::vector<Sprite>& last) {
    // By the bytes, as sprites compare: this runs over every pool after every tick.
    static_assert(sizeof(Sprite) == 12, "no padding");
    return last.size() == static_cast<std::size_t>(pool.Count()) &&
           std::memcmp(last.data(), &pool[0], last.size() * sizeof(Sprite)) == 0;
}

} // namespace

std::vector<QRect> BoardLook::Changes(const frmDocument& board, int scale, const QRect& visible) {
    std::vector<QRect> changes;
    const auto add = [&](const Sprite& sprite) {
        const QRect rect = SpriteRect(sprite.Left, sprite.Top, scale) & visible;
        if (sprite.Visible && !rect.isEmpty()) changes.push_back(rect);
    };
    const auto compare = [&](const Sprite& before, const Sprite& now) {
        if (before == now) return;
        add(before);
        add(now);
    };
    for (std::size_t p = 0; p < PoolCount; ++p) {
        const Pool& pool = board.Pools[PoolKinds()[p].Which];
        std::vector<Sprite>& last = pools[p];
        if (SameAll(pool, last)) continue;
        last.resize(static_cast<std::size_t>(pool.Count()));
        for (int i = 0; i < pool.Count(); ++i) compare(last[static_cast<std::size_t>(i)], pool[i]);
        last.assign(pool.begin(), pool.end());
    }
    compare(you, board.You);
    you = board.You;
    return changes;
}

} // namespace tumbledeep
