// What tells the P mine and the PP mine apart in their common step and aim.
#pragma once

#include "board/frmDocument.h"

namespace tumbledeep {

struct Hunter {
    Kind Cell;
    Picture UpPic;
    bool AlwaysTurns; ///< after a step too, and not only when blocked
};

} // namespace tumbledeep
