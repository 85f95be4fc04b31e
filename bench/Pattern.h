// Boards of a small picture that is repeated over a walled field, such as {"T", " ", "."}: T mines
// in every third row, each two cells above dirt. A field of 301 by 301 has nearly all the room that
// the grid has; pools are filled up to their limit and no further.
#pragma once

#include "world/Board.h"

#include <string>
#include <vector>

namespace tumbledeep {

/// The most sprites of a kind that a map can have, as the template takes one place of its pool.
/// While one tick of a map takes minutes, a smaller number tells how its time grows.
inline constexpr int Full = Pool::Limit - 1;

/// The most columns, or rows, within walls.
inline constexpr int WidestField = GridSize - 2;

/// How many rows of the widest field a pool fills.
inline constexpr int RowsOfAPool = Full / WidestField;

/// `#` is a wall, `.` dirt, `*` a gem, `O` a rock, `f` a factory; T, L, R, F, P and Q are the mines
/// T, L, R, FL, P and PP; any other character is nothing.
Kind KindOf(char letter);

/// A picture of such letters, repeated to the right and downward, and how it is put on the map.
struct Pattern {
    std::vector<std::string> Picture;
    int Cols = WidestField;
    int Rows = WidestField;
    int FreeRows = 0;         ///< below the pattern and above the lowest wall
    std::string Tag = "none"; ///< the heading of the mines; this one lets them stand still
    std::string Recipe = "0:bang";
    float Aside = 0; ///< in twips, how far to the right of its cell all stands but the factories
    bool LowestFirst = false; ///< the lines go from the lowest row up, so that a pile falls as one
};

/// The text of the map, endless; a kind of which there are `Full` is left out from there on.
std::string MapOf(const Pattern& pattern);

/// The board. PP mines have their cells marked, as if they had walked there.
Board BoardOf(const Pattern& pattern);

} // namespace tumbledeep
