// The one difference between the L and the R mine: the hand at which it keeps its wall.
#pragma once

#include "board/frmDocument.h"

namespace tumbledeep {

struct WallMine {
    Pool frmDocument::*Mines;
    Kind Cell;
    Picture UpPic;
    Heading (*Hand)(Heading); ///< a quarter turn towards the wall
};

} // namespace tumbledeep
