// Which drawing belongs to which picture, and what is painted over what. The drawings are in the
// files named Draw.
#include "pictures/Catalogue.h"

#include "pictures/Draw.h"

#include <algorithm>

namespace tumbledeep {

namespace {

using Pictures = std::array<Bitmap, PictureCount>;

Bitmap& Place(Pictures& pictures, Picture picture) {
    return pictures[static_cast<std::size_t>(picture)];
}

/// Where the spike of a kind points for a heading; only L and R mines have one.
std::optional<Heading> SpikeOf(Kind mine, Heading heading) {
    if (mine == Kind::MovingMineL) return LeftOf(heading);
    if (mine == Kind::MovingMineR) return RightOf(heading);
    return std::nullopt;
}

void DrawStores(Pictures& pictures) {
    for (const KindRow& row : PoolKinds()) {
        if (row.UpPic == Picture::None) continue;
        Place(pictures, row.Template) = DrawStar(row.Which);
        for (const Heading heading : Headings) {
            const auto spike = SpikeOf(row.Which, heading);
            Place(pictures, HeadingPicture(row.UpPic, heading)) =
                spike ? DrawSpikedStar(row.Which, Ahead(*spike)) : DrawStar(row.Which);
        }
    }
}

/// Shapes lie at the bottom, then the player and factories, over which everything else passes.
int LayerOf(Kind kind) {
    if (kind == Kind::You) return 1;
    if (RowOf(kind).IsShape) return 0;
    return kind == Kind::Factory ? 2 : 3;
}

std::array<Kind, PaintedCount> OrderOfPainting() {
    std::array<Kind, PaintedCount> order{Kind::You};
    std::ranges::transform(PoolKinds(), order.begin() + 1, &KindRow::Which);
    std::ranges::stable_sort(order, {}, LayerOf);
    return order;
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

const std::array<Kind, PaintedCount>& PaintOrder() {
    static const std::array<Kind, PaintedCount> order = OrderOfPainting();
    return order;
}

const std::array<Bitmap, PictureCount>& Catalogue() {
    static const Pictures pictures = DrawAll();
    return pictures;
}

} // namespace tumbledeep
