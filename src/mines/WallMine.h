// The one difference between the L and the R mine: the hand at which it keeps its wall.
#pragma once

#include "board/frmDocument.h"

#include <array>

namespace tumbledeep {

struct WallMine {
    Pool frmDocument::*Mines;
    Kind Cell;
    Picture UpPic;
    std::array<Heading, 4> Hand; ///< for each heading, a quarter turn towards the wall
};

} // namespace tumbledeep
