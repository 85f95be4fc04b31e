// The board as a value: copies play on like their original and know nothing of one another; what
// counts in comparisons; where grid and pools end.
#include "formats/LoadMap.h"
#include "soak/RandomGame.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace tumbledeep {

namespace {

static_assert(!std::is_copy_constructible_v<frmMain> && !std::is_copy_assignable_v<frmMain>);
static_assert(!std::is_copy_constructible_v<frmDocument>);

/// Plays periods with a seed's own keys.
void Play(Board& board, std::uint32_t keys, int periods) {
    Dice dice(keys);
    HeldKeys held;
    for (int i = 0; i < periods; ++i) {
        held.Set(static_cast<Heading>(dice.Below(4)), dice.Once(2));
        board.Period(std::string(1, "wasd "[dice.Below(5)]), held);
    }
}

TEST(Board, CopiesPlayOnLikeTheirOriginalAndApartFromIt) {
    int parted = 0;
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        Board board = LoadMap(RandomMap(seed), seed);
        Play(board, seed, 100);
        const Board before = board;
        Board same = board;
        Board other;
        other = board;
        Play(board, seed, 150);
        EXPECT_EQ(before.HashValue(), same.HashValue()) << "playing the original changed a copy";
        Play(same, seed, 150);
        EXPECT_TRUE(board == same) << seed;
        EXPECT_EQ(board.HashValue(), same.HashValue());
        Play(other, seed + 1000, 150);
        parted += !(board == other) && board.HashValue() != other.HashValue();
        EXPECT_FALSE(board == before);
    }
    EXPECT_GT(parted, 10);
}

TEST(Board, ComparesByWhatItHoldsAndNotByItsPast) {
    Board one;
    Board other;
    one.Area.Set({299, 299}, Kind::Dirt);
    one.Area.Set({299, 299}, Kind::Empty);
    EXPECT_TRUE(one == other);
    other.Area.Set({300, 0}, Kind::Bang);
    EXPECT_FALSE(one == other);
    EXPECT_NE(one.HashValue(), other.HashValue());
    one.Area.Set({300, 0}, Kind::Bang);
    for (const Kind kind : {Kind::Factory, Kind::MovingMineP}) {
        // The same tags, got in another order.
        for (const char* tag : {"first", "9:bang"}) one.Pools[kind].SetTag(0, tag);
        other.Pools[kind].SetTag(0, "9:bang");
    }
    EXPECT_TRUE(one == other);
    EXPECT_EQ(one.HashValue(), other.HashValue());
    other.Pools[Kind::Factory].SetTag(0, "8:bang");
    EXPECT_FALSE(one == other);
    other = one;
    other.Pools[Kind::Dirt].Put(0, -0.0F, 0);
    one.Pools[Kind::Dirt].Put(0, 0.0F, 0);
    EXPECT_FALSE(one == other) << "minus zero is printed as another place";
    EXPECT_NE(one.HashValue(), other.HashValue());
}

TEST(Board, GridEndsAt300AndAPoolAt32767) {
    Board board;
    for (const Cell outside : {Cell{-1, 0}, {0, -1}, {301, 0}, {0, 301}}) {
        board.Area.Set(outside, Kind::Dirt);
        EXPECT_EQ(board.Area(outside), Kind::HardDirt);
    }
    board.Area.Set({300, 300}, Kind::Dirt);
    EXPECT_EQ(board.Area(300, 300), Kind::Dirt);
    EXPECT_EQ(board.Area(299, 300), Kind::Empty);

    Pool& dirt = board.Pools[Kind::Dirt];
    dirt.Show(0);
    while (!dirt.Full()) dirt.Show(dirt.Add());
    board.SpawnObject(Kind::Dirt, 0, 0, Heading::Down);
    EXPECT_EQ(dirt.Count(), 32767);
    EXPECT_EQ(board.Area(1, 1), Kind::Empty);
}

} // namespace

} // namespace tumbledeep
