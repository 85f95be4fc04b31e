// New objects in play: which sprite, which picture, and what the cell reads.
#include "support/Scenario.h"

namespace tumbledeep {

namespace {

TEST(SpawnObject, TakesTheHighestHiddenSpriteThenTheTemplateThenANewOne) {
    Scenario scene("OOOOO");
    Pool& rocks = scene.Board.RoundRock;
    rocks.Visible[2] = rocks.Visible[5] = false;
    scene.Board.PoolIndex = scene.Board.InnerIndex = 77;
    int row = 10;
    for (const auto& [slot, count, cell] :
         {std::tuple{5, 6, Kind::RoundRock}, std::tuple{2, 6, Kind::RoundRock},
          std::tuple{0, 6, Kind::RoundRock}, std::tuple{-1, 7, Kind::Dirt}}) {
        ++row;
        scene.Board.Area(3, row) = Kind::Dirt;
        scene.Board.SpawnObject("roundrock", 720, static_cast<float>(row - 1) * Pitch, "D");
        EXPECT_EQ(scene.Board.FreeSlot, slot);
        EXPECT_EQ(rocks.Count(), count);
        EXPECT_EQ(scene.AreaAt(3, row), cell) << "only a sprite that is reused marks its cell";
        const PoolSprite rock = rocks[slot < 0 ? count - 1 : slot];
        EXPECT_TRUE(rock.Visible);
        EXPECT_EQ(rock.Left, 720);
        EXPECT_EQ(rock.Top, static_cast<float>(row - 1) * Pitch);
        EXPECT_EQ(rock.Tag, "") << "rocks keep their tag";
    }
    EXPECT_EQ(scene.Board.PoolIndex, 77);
    EXPECT_EQ(scene.Board.InnerIndex, 77);
}

TEST(SpawnObject, UnknownKindsDoNothing) {
    Scenario scene("#");
    const auto before = scene.Board.Area.Cells();
    for (const char* kind : {"", "you", "factory", "movingminet", "Bang", "gem"}) {
        scene.Board.FreeSlot = 5;
        scene.Board.SpawnObject(kind, 0, 0, "D");
        EXPECT_EQ(scene.Board.FreeSlot, -1) << kind;
    }
    EXPECT_EQ(scene.Board.Area.Cells(), before);
    EXPECT_EQ(scene.Board.Factory.Count(), 1);
}

TEST(SpawnObject, PicturesAndTags) {
    Scenario scene("#");
    const auto shown = [&](const char* kind, Pool& pool, float draw) {
        scene.Services.Draws = {draw};
        scene.Board.SpawnObject(kind, 0, 0, "D");
        pool.Visible[0] = false;
        return PictureName(pool.Picture[0]);
    };
    // The index is rounded, a tie going to the even one.
    EXPECT_EQ(shown("roundrock", scene.Board.RoundRock, 0.99F), "RoundRockPic(6)");
    EXPECT_EQ(shown("roundrock", scene.Board.RoundRock, 0.25F), "RoundRockPic(2)");
    EXPECT_EQ(shown("roundrock", scene.Board.RoundRock, 0.75F), "RoundRockPic(4)");
    EXPECT_EQ(shown("gem1type", scene.Board.Gem1Type, 0.5F), "GemTypePic(2)");
    EXPECT_EQ(shown("gem1type", scene.Board.Gem1Type, 0.0F), "GemTypePic(0)");

    scene.Board.MovingMineP.Picture[0] = Picture::MovingMinePUpPic;
    EXPECT_EQ(shown("movingmineP", scene.Board.MovingMineP, 0), "MovingMinePUpPic");
    EXPECT_EQ(scene.Board.MovingMineP.Tag[0], "D");
    scene.Board.Bang.Tag[0] = "old";
    EXPECT_EQ(shown("bang", scene.Board.Bang, 0), "Bang");
    EXPECT_EQ(scene.Board.Bang.Tag[0], "old");
}

TEST(SpawnObject, FullPoolStaysAsItIs) {
    Scenario scene("#");
    Pool& bangs = scene.Board.Bang;
    while (!bangs.Full()) bangs.Add();
    ASSERT_EQ(bangs.Count(), 32767);
    bangs.Visible.assign(bangs.Visible.size(), 1);
    scene.Board.SpawnObject("bang", 360, 0, "D");
    EXPECT_EQ(scene.Board.FreeSlot, -1);
    EXPECT_EQ(bangs.Count(), 32767);
    EXPECT_EQ(scene.AreaAt(2, 1), Kind::Empty);
}

TEST(Area, CellsOfPositionsBetweenCellsAndBeyondTheGrid) {
    struct Case {
        float Left;
        Offset To;
        int Col;
    };
    for (const Case& c :
         {Case{0, Here, 1}, Case{540, Here, 2}, Case{900, Here, 4}, Case{540, ToRight, 4},
          Case{540, ToLeft, 2}, Case{-360, Here, 0}, Case{-720, Here, -1}, Case{-540, Here, 0},
          Case{108000, Here, 301}, Case{1e30F, Here, -1}, Case{-1e30F, Here, -1}}) {
        EXPECT_EQ(Near(Sprite{c.Left, 0, true}, c.To).Col, c.Col) << c.Left;
    }
    AreaGrid area;
    area(300, 300) = Kind::Bang;
    for (const Cell cell : {Cell{-1, 5}, Cell{301, 5}, Cell{5, -1}, Cell{5, 301}}) {
        area(cell) = Kind::Empty;
        EXPECT_EQ(area(cell), Kind::HardDirt);
    }
    EXPECT_EQ(area.Cells().back(), Kind::Bang);
}

} // namespace

} // namespace tumbledeep
