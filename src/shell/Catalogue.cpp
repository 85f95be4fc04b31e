// Which drawing belongs to which picture.
#include "shell/Catalogue.h"

#include "shell/Draw.h"

namespace tumbledeep {

namespace {

using Pictures = std::array<Bitmap, PictureCount>;

Bitmap& Place(Pictures& pictures, Picture picture) {
    return pictures[static_cast<std::size_t>(picture)];
}

struct Store {
    StarMine Kind;
    Picture Template;
    Picture Up;
    Heading (*Hand)(Heading); ///< where the spike points; none for a kind without one
};

constexpr std::array<Store, 5> Stores{{
    {StarMine::L, Picture::MovingMineL, Picture::MovingMineLUpPic, LeftOf},
    {StarMine::R, Picture::MovingMineR, Picture::MovingMineRUpPic, RightOf},
    {StarMine::FL, Picture::MovingMineFL, Picture::MovingMineFLUpPic, nullptr},
    {StarMine::P, Picture::MovingMineP, Picture::MovingMinePUpPic, nullptr},
    {StarMine::PP, Picture::MovingMinePP, Picture::MovingMinePPUpPic, nullptr},
}};

void DrawStores(Pictures& pictures) {
    for (const auto& [kind, bare, up, hand] : Stores) {
        Place(pictures, bare) = DrawStar(kind);
        for (const Heading heading : {Heading::Up, Heading::Down, Heading::Left, Heading::Right}) {
            Place(pictures, HeadingPicture(up, heading)) =
                hand ? DrawSpikedStar(kind, Ahead(hand(heading))) : DrawStar(kind);
        }
    }
}

Pictures DrawAll() {
    Pictures pictures;
    DrawStores(pictures);
    for (int i = 0; i < GemTypePicCount; ++i) {
        Place(pictures, Member(Picture::GemTypePic, i)) = DrawGem(i);
    }
    for (int i = 0; i < RoundRockPicCount; ++i) {
        Place(pictures, Member(Picture::RoundRockPic, i)) = DrawRock(i);
    }
    Place(pictures, Picture::MovingMineT) = DrawMineT();
    Place(pictures, Picture::Factory) = DrawFactory();
    Place(pictures, Picture::Bang) = DrawBang();
    return pictures;
}

} // namespace

const std::array<Bitmap, PictureCount>& Catalogue() {
    static const Pictures pictures = DrawAll();
    return pictures;
}

} // namespace tumbledeep
