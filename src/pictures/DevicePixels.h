// How places in twips become whole device pixels, the same way wherever a board is painted. Where
// it is painted is for who paints it.
#pragma once

namespace tumbledeep {

/// The most device pixels to a pixel of the game that can be asked for.
inline constexpr int LargestScale = 16;

/// Twips to whole device pixels, `scale` of them to a pixel of the game, held to what lies far
/// beyond any screen.
int ToDevice(float twips, int scale);

} // namespace tumbledeep
