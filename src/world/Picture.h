// The pictures by number: stores of headings, picture pools and the templates' own. What they look
// like is told in pictures/.
#pragma once

#include "world/Heading.h"

#include <string>

namespace tumbledeep {

enum class Picture : std::uint8_t {
    None, ///< a shape, which has no picture
    // The stores of the headings, by kind in the order of Heading.
    MovingMineLUpPic,
    MovingMineRUpPic = MovingMineLUpPic + 4,
    MovingMineFLUpPic = MovingMineRUpPic + 4,
    MovingMinePUpPic = MovingMineFLUpPic + 4,
    MovingMinePPUpPic = MovingMinePUpPic + 4,
    // The picture pools, each with room for its members behind it.
    GemTypePic = MovingMinePPUpPic + 4,
    RoundRockPic = GemTypePic + 6,
    // The pictures of the templates.
    MovingMineT = RoundRockPic + 7,
    MovingMineL,
    MovingMineR,
    MovingMineFL,
    MovingMineP,
    MovingMinePP,
    Factory,
    Bang,
};

inline constexpr int PictureCount = static_cast<int>(Picture::Bang) + 1;
inline constexpr int GemTypePicCount = 6;
inline constexpr int RoundRockPicCount = 7;

/// Member `index` of a picture pool, from 0.
constexpr Picture Member(Picture pool, int index) {
    return static_cast<Picture>(static_cast<int>(pool) + index);
}

/// The store of a heading, by the store of the kind's heading "U".
constexpr Picture HeadingPicture(Picture upPic, Heading heading) {
    return Member(upPic, static_cast<int>(heading));
}

/// The picture's name, a member of a pool with its index: "GemTypePic(3)"; "" for None.
std::string PictureName(Picture picture);

} // namespace tumbledeep
