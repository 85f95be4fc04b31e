// The names of the pictures, as the trace prints them. They are made of the names of the pools that
// show them, so that nobody lists them twice.
#include "world/Picture.h"

#include "world/Kind.h"

#include <algorithm>

namespace tumbledeep {

std::string PictureName(Picture picture) {
    static constexpr std::array<const char*, 4> ways{"Up", "Down", "Left", "Right"};
    if (picture == Picture::None) return "";
    for (const KindRow& row : PoolKinds()) {
        const int member = static_cast<int>(picture) - static_cast<int>(row.Template);
        if (row.PictureMembers > 0 && member >= 0 && member < row.PictureMembers) {
            const char* const pool = row.Which == Kind::Gem1Type ? "GemTypePic(" : "RoundRockPic(";
            return pool + std::to_string(member) + ")";
        }
        if (row.Template == picture) return std::string(row.PoolName);
        const int way = static_cast<int>(picture) - static_cast<int>(row.UpPic);
        if (row.UpPic != Picture::None && way >= 0 && way < 4) {
            return std::string(row.PoolName) + ways[static_cast<std::size_t>(way)] + "Pic";
        }
    }
    return "";
}

} // namespace tumbledeep
