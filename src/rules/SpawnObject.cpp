// New objects during play: what a factory makes, and each Bang. A hidden sprite is used again if
// there is one, the template too, or else the pool grows. A map's own objects come in by
// formats/LoadMap.cpp, which shares the drawing of a picture.
#include "world/Board.h"

namespace tumbledeep {

void Board::SpawnObject(Kind kind, float left, float top, Heading tag) {
    Pool& pool = Pools[kind];
    const int free = pool.LastHidden();
    const bool reused = free >= 0;
    if (!reused && pool.Full()) return;

    const int index = reused ? free : pool.Add();
    pool.Put(index, left, top);
    pool.Show(index);
    DrawPicture(kind, index);
    if (IsMine(kind)) pool.SetHeading(index, tag);
    // A quirk that maps play with: an added sprite leaves its cell as it is, so that what a factory
    // makes may stand unseen by the rules until it moves; tests/films/FactoryTest.cpp pins it.
    if (reused) Area.Set(pool.CellOf(index), kind);
}

void Board::DrawPicture(Kind kind, int index) {
    const KindRow& row = RowOf(kind);
    if (row.PictureMembers == 0) return;
    const float member = static_cast<float>(row.PictureMembers - 1) * random.Rnd();
    Pools[kind].Dress(index, Member(row.Template, static_cast<int>(RoundToEven(member))));
}

} // namespace tumbledeep
