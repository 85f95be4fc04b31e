// The drawings behind the catalogue, by subject; each gives a finished bitmap. Who wants a picture
// asks the catalogue, which draws each of them once.
#pragma once

#include "pictures/Bitmap.h"
#include "world/Kind.h"

namespace tumbledeep {

/// The small star of a kind of mine that has a heading, L to PP.
Bitmap DrawStar(Kind mine);

/// The same star with a spike to one of the four sides, which marks the mine's hand.
Bitmap DrawSpikedStar(Kind mine, Offset side);

Bitmap DrawMineT();

/// A gem, `member` from 0 to 5: the first three are diamonds, the others discs.
inline constexpr int DiamondCount = 3;
Bitmap DrawGem(int member);

/// Draws diamond `member`, 0 to 2, over the middle of a bitmap; `halfHeight` in pixels.
void StampDiamond(Bitmap& bitmap, int member, int halfHeight);

/// A rock, `member` from 0 to 6.
Bitmap DrawRock(int member);

Bitmap DrawBang();
Bitmap DrawFactory();

} // namespace tumbledeep
