// What a pool keeps beside its sprites answers like a look at each of them: cells, the hidden ones,
// and what stands at a place.
#include "formats/LoadMap.h"
#include "soak/RandomGame.h"

#include <gtest/gtest.h>

#include <set>

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

/// What no rule does to a pool that has just been asked.
void Disturb(Pool& pool, Dice& dice) {
    const int index = dice.Below(pool.Count());
    const auto look = [&] {
        pool.VisibleAt(pool[index].Left, pool[index].Top);
        pool.AllAt(pool[index].Left, pool[index].Top);
    };
    look();
    const Pool before = pool;
    switch (dice.Below(20)) {
    case 0: pool.Hide(index); break;
    case 1: pool.Show(index); break;
    case 2: pool.Move(index, dice.Once(2) ? ToLeft : Below); break;
    case 3: pool.Add(); break;
    default: return;
    }
    if (dice.Once(2)) return;
    look();
    pool = before;
}

void ExpectAnswersLikePlainScans(Pool& pool, Dice& dice) {
    Disturb(pool, dice);
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
    for (const int index : pool.InTurn()) hidden += pool[index].Visible;
    ASSERT_EQ(hidden, pool.Count());
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

TEST(Pool, FindsItsWayInACrowd) {
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        Dice dice(seed);
        Pool pool(RowOf(Kind::MovingMineP));
        const auto place = [&] {
            return static_cast<float>(178 * 64 + dice.Below(dice.Once(2) ? 64 : 256)) / 64;
        };
        while (pool.Count() < 1000) pool.Put(pool.Add(), place(), 0);
        for (int i = 1; i < 1000; ++i) pool.Show(i);
        for (int look = 0; look < 60; ++look) {
            const float left = place();
            const auto visible = pool.VisibleAt(left, 0);
            const std::vector<int> taken(visible.begin(), visible.end());
            ASSERT_EQ(taken, LookedUp(pool, left, 0, false)) << seed;
            const auto all = pool.AllAt(left, 0);
            const std::vector<int> every(all.begin(), all.end());
            ASSERT_EQ(every, LookedUp(pool, left, 0, true)) << seed;
            const auto few = pool.FewAt(left, 0);
            const auto cells = [&](const auto& indexes) {
                std::set<unsigned> numbers;
                for (const int i : indexes) numbers.insert(pool.CellOf(i).Number());
                return numbers;
            };
            ASSERT_EQ(cells(few), cells(every));
            ASSERT_TRUE(every.empty() || few.back() == every.back());
            ASSERT_TRUE(std::ranges::includes(few, taken) && std::ranges::includes(every, few));
            for (const int index : taken) {
                if (!dice.Once(9)) pool.Hide(index);
            }
            if (dice.Once(20)) pool.Put(dice.Below(1000), place(), 0);
        }
    }
}

} // namespace

} // namespace tumbledeep
