// What several kinds of mine have in common.
#include "board/frmDocument.h"

#include <algorithm>

namespace tumbledeep {

void frmDocument::Turn(PoolSprite mine, Heading heading, Picture upPic) {
    mine.Tag = TagOf(heading);
    CopyPicture(mine, HeadingPicture(upPic, heading));
}

bool frmDocument::TouchesYou(PoolSprite sprite) {
    return std::any_of(HeadingOffsets.begin(), HeadingOffsets.end(),
                       [&](Offset offset) { return Area(Near(sprite, offset)) == Kind::You; });
}

} // namespace tumbledeep
