// What a pool keeps beside its sprites answers like a look at each of them: cells, the hidden ones,
// and what stands at a place.
#include "formats/LoadMap.h"
#include "soak/RandomGame.h"

#include <gtest/gtest.h>

namespace tumbledeep {

namespace {

constexpr std::array<float, 8> Aside{0, 180, 179.99F, -180.01F, 0.5F, 1, -0.999F, 360};

std::vector<int> LookedUp(const Pool& pool, float left, float top, bool hiddenToo) {
    std::vector<int> found;
    for (int i = 0; i < pool.Count(); ++i) {
        const Sprite& sprite = pool[i];
        if (sprite.Top == top && sprite.Left - 1.0F < left && left < sprite.Left + 1.0F &&
            (hiddenToo || sprite.Visible)) {
            found.push_back(i);
        }
    }
    return found;
}

void ExpectAnswersLikePlainScans(Pool& pool, Dice& dice) {
    int last = -1;
    int hidden = 0;
    for (int i = 0; i < pool.Count(); ++i) {
        if (!pool[i].Visible) last = i;
        hidden += !pool[i].Visible;
        for (const Offset offset : {Here, Above, Below + Below, ToLeft, ToRight + Below}) {
            const Cell cell = pool.CellOf(i, offset);
            const Cell plain = CellOf(pool[i], offset);
            ASSERT_TRUE(cell == plain || (!cell.InGrid() && !plain.InGrid())) << pool[i].Left;
        }
    }
    ASSERT_EQ(pool.LastHidden(), last);
    ASSERT_EQ(pool.HiddenCount(), hidden);
    for (int look = 0; look < 4; ++look) {
        const Sprite& near = pool[dice.Below(pool.Count())];
        const float left = near.Left + Aside.at(static_cast<std::size_t>(dice.Below(8)));
        const auto visible = pool.VisibleAt(left, near.Top);
        ASSERT_EQ(std::vector(visible.begin(), visible.end()),
                  LookedUp(pool, left, near.Top, false));
        const auto all = pool.AllAt(left, near.Top);
        ASSERT_EQ(std::vector(all.begin(), all.end()), LookedUp(pool, left, near.Top, true));
    }
}

TEST(Pool, AnswersLikePlainScansAtEveryTick) {
    for (std::uint32_t seed = 1; seed <= 30; ++seed) {
        Dice dice(seed);
        Board board = LoadMap(RandomMap(seed), seed);
        for (const KindRow& row : PoolKinds()) {
            Pool& pool = board.Pools[row.Which];
            for (int i = 1; i < pool.Count(); ++i) {
                if (!dice.Once(6)) continue;
                // Often onto or beside another sprite.
                const Sprite& other = pool[dice.Below(pool.Count())];
                pool.Put(i, other.Left + Aside.at(static_cast<std::size_t>(dice.Below(8))),
                         other.Top + Aside.at(static_cast<std::size_t>(dice.Below(4))));
            }
        }
        board.ResetStart(seed);
        HeldKeys held;
        for (int tick = 0; tick < 120; ++tick) {
            held.Set(static_cast<Heading>(dice.Below(4)), dice.Once(2));
            board.Tick(held);
            for (const KindRow& row : PoolKinds()) {
                ExpectAnswersLikePlainScans(board.Pools[row.Which], dice);
                if (HasFatalFailure()) FAIL() << row.Text << " seed " << seed << " tick " << tick;
            }
        }
    }
}

} // namespace

} // namespace tumbledeep
