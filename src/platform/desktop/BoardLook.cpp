// Whole arrays are compared first: in most pools of a tick nothing has changed.
#include "platform/desktop/BoardLook.h"

#include "platform/Bitmap.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

constexpr float TwipsPerPixel = 15;
/// Beyond any screen; keeps the arithmetic of rectangles far from its limits.
constexpr float FarAway = 10'000'000;

} // namespace

std::array<const Pool*, 12> PaintOrder(const frmDocument& board) {
    return {&board.HardDirt,     &board.Dirt,        &board.Factory,      &board.Gem1Type,
            &board.RoundRock,    &board.MovingMineT, &board.MovingMineL,  &board.MovingMineR,
            &board.MovingMineFL, &board.MovingMineP, &board.MovingMinePP, &board.Bang};
}

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

std::vector<QRect> BoardLook::Changes(const frmDocument& board, int scale, const QRect& visible) {
    std::vector<QRect> changes;
    const auto order = PaintOrder(board);
    for (std::size_t i = 0; i < order.size(); ++i) {
        PoolChanges(*order[i], pools[i], scale, visible, changes);
    }
    if (you.Left != board.You.Left || you.Top != board.You.Top) {
        for (const Sprite& sprite : {you, board.You}) {
            const QRect rect = SpriteRect(sprite.Left, sprite.Top, scale) & visible;
            if (!rect.isEmpty()) changes.push_back(rect);
        }
        you = board.You;
    }
    return changes;
}

void BoardLook::PoolChanges(const Pool& pool, PoolLook& last, int scale, const QRect& visible,
                            std::vector<QRect>& changes) {
    if (last.Visible == pool.Visible && last.Left == pool.Left && last.Top == pool.Top &&
        last.Pictures == pool.Picture) {
        return;
    }
    const auto add = [&](float left, float top) {
        const QRect rect = SpriteRect(left, top, scale) & visible;
        if (!rect.isEmpty()) changes.push_back(rect);
    };
    const std::size_t known = last.Visible.size();
    for (std::size_t i = 0; i < pool.Visible.size(); ++i) {
        const bool wasShown = i < known && last.Visible[i] != 0;
        const bool isShown = pool.Visible[i] != 0;
        if (wasShown && isShown && last.Left[i] == pool.Left[i] && last.Top[i] == pool.Top[i] &&
            last.Pictures[i] == pool.Picture[i]) {
            continue;
        }
        if (wasShown) add(last.Left[i], last.Top[i]);
        if (isShown) add(pool.Left[i], pool.Top[i]);
    }
    last = {pool.Left, pool.Top, pool.Visible, pool.Picture};
}

} // namespace tumbledeep
