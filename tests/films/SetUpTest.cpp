// Set-up: who owns a shared cell, which pictures mines show, where the player starts. The lines of
// a map are in formats/MapTextTest.cpp; Film.h tells how films are read.
#include "formats/LoadMap.h"
#include "support/Film.h"

namespace tumbledeep {

TEST(SetUp, GridAndPicturesComeFromTheSprites) {
    PlayFilms(R"(
        = the later stamp owns a shared cell; PP mines, factories have none | key:,
            | a=# a=*? b=: b=#? c=O c=:? d=T d=O? e=R e=T? f=L f=R? g=F g=L? h=P h=F? i=@ i=P? j=Q
            abcdefghij^   #:OTRLFP@q^
        = a picture for each heading; a tag that is none leaves the bare star | key:,
            | a=L:U b=L:D c=L:L d=R:U e=F:R f=P:D g=Q:L h=L:u heads:UDL-URDL
            abcdefgh   LLLRFPqL)");
}

TEST(SetUp, PlayersPlace) {
    Board none = LoadMap("", 1);
    EXPECT_EQ(none.Area(7, 14), Kind::You) << "the layout's place, between two cells";
    EXPECT_EQ(none.GemTotal, 1) << "the template counts";
    Board between = LoadMap("you 540 900", 1);
    EXPECT_EQ(between.YouCol, 3.5F) << "the column is not rounded";
    EXPECT_EQ(between.YouRow, 2) << "the row is, a tie to the even one";
    EXPECT_EQ(between.Area(4, 2), Kind::You);
}

} // namespace tumbledeep
