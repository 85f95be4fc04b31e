// New objects during play. Pools never shrink: a hidden sprite is a free one, the template too.
#include "world/Board.h"

namespace tumbledeep {

void Board::SpawnObject(Kind kind, float left, float top, Heading tag) {
    Pool& pool = Pools[kind];
    const int free = pool.LastHidden();
    const bool reused = free >= 0;
    if (!reused && pool.Full()) return;

    const int index = reused ? free : pool.Add();
    pool.PutTop(index, top);
    pool.PutLeft(index, left);
    pool.Show(index);
    DrawPicture(kind, index);
    if (IsMine(kind)) pool.SetHeading(index, tag);
    // A quirk that maps play with: a new sprite leaves its cell as it is, so that what a factory
    // brings out may stand unseen by the rules until it moves; tests/films/FactoryTest.cpp pins it.
    if (reused) Area.Set(CellOf(pool[index]), kind);
}

void Board::DrawPicture(Kind kind, int index) {
    const KindRow& row = RowOf(kind);
    if (row.PictureMembers == 0) return;
    const float member = static_cast<float>(row.PictureMembers - 1) * random.Rnd();
    Pools[kind].Dress(index, Member(row.Template, GridIndex(member)));
}

} // namespace tumbledeep
