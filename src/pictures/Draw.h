// The drawings behind the catalogue, by subject.
#pragma once

#include "pictures/Bitmap.h"
#include "world/Kind.h"

namespace tumbledeep {

/// The small spiked star of the five kinds of mine that have a heading.
Bitmap DrawStar(Kind mine);

/// The star with a spike to one of the four sides, which marks the mine's hand.
Bitmap DrawSpikedStar(Kind mine, Offset side);

Bitmap DrawMineT();

/// The first members are diamonds, the others discs.
inline constexpr int DiamondCount = 3;
Bitmap DrawGem(int member);

/// A diamond in the middle of what is drawn already.
void StampDiamond(Bitmap& bitmap, int member, int halfHeight);

Bitmap DrawRock(int member);

Bitmap DrawBang();
Bitmap DrawFactory();

} // namespace tumbledeep
