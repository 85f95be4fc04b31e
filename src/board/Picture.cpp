// The names of the pictures.
#include "board/Picture.h"

#include <array>
#include <string_view>

namespace tumbledeep {

namespace {

constexpr std::array<std::string_view, 20> StoreNames{
    "MovingMineLUpPic",  "MovingMineLDownPic",  "MovingMineLLeftPic",  "MovingMineLRightPic",
    "MovingMineRUpPic",  "MovingMineRDownPic",  "MovingMineRLeftPic",  "MovingMineRRightPic",
    "MovingMineFLUpPic", "MovingMineFLDownPic", "MovingMineFLLeftPic", "MovingMineFLRightPic",
    "MovingMinePUpPic",  "MovingMinePDownPic",  "MovingMinePLeftPic",  "MovingMinePRightPic",
    "MovingMinePPUpPic", "MovingMinePPDownPic", "MovingMinePPLeftPic", "MovingMinePPRightPic",
};

constexpr std::array<std::string_view, 8> TemplateNames{
    "MovingMineT", "MovingMineL",  "MovingMineR", "MovingMineFL",
    "MovingMineP", "MovingMinePP", "Factory",     "Bang",
};

std::string MemberName(std::string_view pool, int index) {
    return std::string(pool) + "(" + std::to_string(index) + ")";
}

} // namespace

std::string PictureName(Picture picture) {
    const auto behind = [picture](Picture first) {
        return static_cast<int>(picture) - static_cast<int>(first);
    };
    if (picture == Picture::None) return "";
    if (picture < Picture::GemTypePic) {
        return std::string(StoreNames[static_cast<std::size_t>(behind(Picture::MovingMineLUpPic))]);
    }
    if (picture < Picture::RoundRockPic)
        return MemberName("GemTypePic", behind(Picture::GemTypePic));
    if (picture < Picture::MovingMineT) {
        return MemberName("RoundRockPic", behind(Picture::RoundRockPic));
    }
    return std::string(TemplateNames[static_cast<std::size_t>(behind(Picture::MovingMineT))]);
}

} // namespace tumbledeep
