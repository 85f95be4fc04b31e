// What a blast does to the nine cells round it: dirt and rocks go, mines blow up in their turn,
// the player dies. Gems, walls, factories and other Bangs stay.
#include "board/frmDocument.h"

#include <array>

namespace tumbledeep {

void frmDocument::SpreadBang() {
    static constexpr std::array<Offset, 9> Block{
        Here,           Below,         Above, ToRight, ToLeft, ToRight + Below, ToRight + Above,
        ToLeft + Below, ToLeft + Above};
    for (const Offset offset : Block) SpreadOver(offset);
}

/// One of the nine cells. `Area` decides which pool is looked at; only visible sprites are taken.
void frmDocument::SpreadOver(Offset offset) {
    const Kind kind = Area(Near(Bang[PoolIndex], offset));
    if (kind == Kind::You) YouDie();
    const bool isMine = IsMine(kind);
    if (!isMine && kind != Kind::Dirt && kind != Kind::RoundRock) return;

    const float left = Bang[PoolIndex].Left + static_cast<float>(offset.Col) * Pitch;
    const float top = Bang[PoolIndex].Top + static_cast<float>(offset.Row) * Pitch;
    Pool& pool = *PoolOf(kind);
    const int count = pool.Count();
    for (InnerIndex = pool.NextAt(0, left, top); InnerIndex < count;
         InnerIndex = pool.NextAt(InnerIndex + 1, left, top)) {
        if (!pool.Shown(InnerIndex)) continue;
        const PoolSprite sprite = pool[InnerIndex];
        sprite.Visible = false;
        Area(Near(sprite)) = isMine ? Kind::Bang : Kind::Empty;
        if (isMine)
            SpawnObject(KindText(Kind::Bang), sprite.Left, sprite.Top, TagOf(Heading::Down));
    }
}

} // namespace tumbledeep
