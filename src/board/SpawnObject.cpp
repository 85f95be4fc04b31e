// New objects during play. Pools never shrink: a hidden sprite is a free one, the template too.
#include "board/frmDocument.h"
#include "platform/Platform.h"

namespace tumbledeep {

void frmDocument::SpawnObject(std::string_view kindText, float left, float top,
                              std::string_view tag) {
    FreeSlot = -1;
    const auto kind = KindOf(kindText);
    Pool* const pool = kind ? PoolOf(*kind) : nullptr;
    if (pool == nullptr) return;

    FreeSlot = pool->LastHidden();
    const bool reused = FreeSlot >= 0;
    if (!reused && pool->Full()) return;

    const PoolSprite sprite = reused ? (*pool)[FreeSlot] : pool->Add();
    sprite.Top = top;
    sprite.Left = left;
    sprite.Visible = true;
    switch (*kind) {
    case Kind::RoundRock:
        CopyPicture(sprite, RandomMember(Picture::RoundRockPic, RoundRockPicCount));
        break;
    case Kind::Gem1Type:
        CopyPicture(sprite, RandomMember(Picture::GemTypePic, GemTypePicCount));
        break;
    case Kind::MovingMineT:
    case Kind::MovingMineL:
    case Kind::MovingMineR:
    case Kind::MovingMineFL:
    case Kind::MovingMineP:
    case Kind::MovingMinePP: sprite.Tag = tag; break;
    default: break;
    }
    // A quirk that maps play with: a new sprite leaves its cell as it is, so that what a factory
    // brings out may stand unseen by the rules until it moves.
    if (reused) Area(Near(sprite)) = *kind;
}

Picture frmDocument::RandomMember(Picture pool, int count) {
    const float index = static_cast<float>(count - 1) * Services.Rnd();
    return Member(pool, GridIndex(index));
}

} // namespace tumbledeep
