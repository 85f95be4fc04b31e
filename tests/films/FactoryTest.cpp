// Factories and new objects: the rest, the products, their looks, and who marks the cell. Film.h
// tells how films are read.
#include "formats/LoadMap.h"
#include "support/Film.h"

#include <map>

namespace tumbledeep {

TEST(Factory, RestsAndProducts) {
    PlayFilms(R"(
        = a rest of two, and none with any separator; a new sprite does not mark the cell
            | a=^:0/dirt b=^:2:dirt
            ab   :^   :^   :;   :;
        = the rest counts from when the cell was seen free | a=@ a=^:1:dirt key:!!!,d!,!
            a.   @.   ^@   :@
        = a hidden one makes nothing | h=^!:0:dirt
            h   .
        = the template first, which marks its cell, then new sprites, which do not: more than 25
            | ^:0:dirt
            ^^^^^^^^^^^^^^^^^^^^^^^^^^^^^^   :;;;;;;;;;;;;;;;;;;;;;;;;;;;;;
        = the last of the hidden sprites first, which keeps its picture
            | ^:0:movingmineL a=L!:U b=L!:D heads:D
            ab^   ..L
        = mines head down, whatever they look like | heads:/D/D/D/D/D
            | a=^:0:movingmineL b=^:0:movingmineR c=^:0:movingmineFL d=^:0:movingmineP
            | e=^:0:movingminePP f=^:0:movingmineT g=^:0:harddirt h=^:0:gem1type i=^:0:bang
            abcdefghi   LRFPQT#*X)",
              &Board::FactoryTick);
    for (const char* recipe : {"x:dirt", "0", "0:", "0:you", "0:factory", "0:Dirt", "-1:dirt"}) {
        PlayFilms(std::string("= makes nothing: | ^:") + recipe + "\n ^ ^ ^", &Board::FactoryTick);
    }
}

TEST(Factory, NewRocksAndGemsDrawAPicture) {
    for (const auto& [kind, first, last] : {std::tuple{Kind::RoundRock, Picture::RoundRockPic, 6},
                                            std::tuple{Kind::Gem1Type, Picture::GemTypePic, 5}}) {
        Board board;
        std::map<Picture, int> seen;
        for (int i = 0; i < 2000 * last; ++i) {
            board.Pools[kind].Hide(0);
            board.SpawnObject(kind, 0, 0, Heading::Down);
            ++seen[board.Pools[kind][0].Look];
        }
        for (int i = 0; i <= last; ++i) {
            EXPECT_NEAR(seen[Member(first, i)], i == 0 || i == last ? 1000 : 2000, 150);
        }
    }
}

} // namespace tumbledeep
