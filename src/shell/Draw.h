// The drawings behind the catalogue, by subject.
#pragma once

#include "board/Cell.h"
#include "board/Picture.h"
#include "platform/Bitmap.h"

#include <cstdint>

namespace tumbledeep {

/// The kinds that share the small spiked star.
enum class StarMine : std::uint8_t { L, R, FL, P, PP };

Bitmap DrawStar(StarMine kind);

/// The star with a spike to one of the four sides, which marks the mine's hand.
Bitmap DrawSpikedStar(StarMine kind, Offset side);

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
