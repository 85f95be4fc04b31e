// Factories: rest, products, and who marks the cell.
#include "support/Scenario.h"

namespace tumbledeep {

constexpr auto FactoryTick = &frmDocument::FactoryTick;

TEST(Factory, RestsBetweenProducts) {
    PlayFilms(R"(
        = two | ^:2:roundrock
            ^ ^ ^ O O
        = none, and any separator | ^:0/dirt
            ^ :)",
              FactoryTick);
    Scenario scene("^ ^ :", "^:1:dirt");
    scene.Board.Area(1, 1) = Kind::You;
    for (int i = 0; i < 5; ++i) scene.Run(FactoryTick);
    scene.Board.Area(1, 1) = Kind::Empty;
    scene.Run(FactoryTick);
    EXPECT_TRUE(scene.Next()) << "the rest counts from the moment that the cell is free";
    scene.Run(FactoryTick);
    EXPECT_TRUE(scene.Next());
}

TEST(Factory, OnlyAReusedSpriteMarksTheCell) {
    Scenario scene("^ : . 2 3 : 3", "^:0:dirt");
    scene.Run(FactoryTick);
    EXPECT_TRUE(scene.Next()) << "the first product takes the template";
    scene.Board.Area(1, 1) = Kind::Empty;
    scene.Run(FactoryTick);
    EXPECT_TRUE(scene.NextArea()) << "the second is a new sprite";
    EXPECT_TRUE(scene.NextSprites());
    scene.Run(FactoryTick);
    EXPECT_TRUE(scene.NextSprites()) << "and the factory goes on beside it";
    scene.Board.Dirt.Visible[1] = false;
    scene.Run(FactoryTick);
    EXPECT_TRUE(scene.NextArea()) << "a sprite hidden meanwhile marks it again";
    EXPECT_TRUE(scene.NextSprites());
}

TEST(Factory, ProductsMoveInTheTickThatMadeThem) {
    PlayFilms(R"(
        = a mine heads down | tick:10 ^:0:movingmineL
            ^.   ^.
            ..   L.
        = a blast leaves the factory | tick:30 ^:0:bang
            :#:   .#.
            O^*   .^*
            ###   ###)");
}

TEST(Factory, RecipesThatMakeNothing) {
    for (const char* recipe : {"x:dirt", "0", "0:", "0:you", "0:factory", "0:Dirt", "-1:dirt"}) {
        PlayFilms(std::string("= ") + recipe + " | ^:" + recipe + "\n^ ^ ^", FactoryTick);
    }
}

} // namespace tumbledeep
