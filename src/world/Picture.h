// The pictures by number. A sprite holds such a number as its look; no rule depends on it. The
// drawings are in pictures/, and which kind shows which is told in world/Kind.cpp.
#pragma once

#include "world/Heading.h"

#include <string>

namespace tumbledeep {

enum class Picture : std::uint8_t {
    None, ///< a shape, which has no picture
    // Four pictures for each kind that shows its heading, in the order of Heading.
    MovingMineLUpPic,
    MovingMineRUpPic = MovingMineLUpPic + 4,
    MovingMineFLUpPic = MovingMineRUpPic + 4,
    MovingMinePUpPic = MovingMineFLUpPic + 4,
    MovingMinePPUpPic = MovingMinePUpPic + 4,
    // The looks of gems and rocks, 6 and 7 in a row.
    GemTypePic = MovingMinePPUpPic + 4,
    RoundRockPic = GemTypePic + 6,
    // The only picture of T mine, factory and Bang, and the star without a heading of the others.
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

/// The picture `index` places behind the first of a row, which counts as 0.
constexpr Picture Member(Picture pool, int index) {
    return static_cast<Picture>(static_cast<int>(pool) + index);
}

/// The picture of a heading, given the one of the same kind for Heading::Up.
constexpr Picture HeadingPicture(Picture upPic, Heading heading) {
    return Member(upPic, static_cast<int>(heading));
}

/// The picture's name, such as "MovingMineLUpPic", "GemTypePic(3)" or "Factory"; "" for None.
std::string PictureName(Picture picture);

} // namespace tumbledeep
