// The scans of a pool.
#include "platform/Pool.h"

#include <algorithm>

namespace tumbledeep {

Pool::Pool(float left, float top, tumbledeep::Picture picture)
    : Left{left}, Top{top}, Visible{0}, Tag{std::string()}, Picture{picture} {}

PoolSprite Pool::Add() {
    Left.push_back(Left.front());
    Top.push_back(Top.front());
    Visible.push_back(0);
    Tag.push_back(std::string(Tag.front()));
    Picture.push_back(Picture.front());
    return (*this)[Count() - 1];
}

int Pool::LastHidden() const {
    const auto hidden = std::find(Visible.rbegin(), Visible.rend(), std::uint8_t{0});
    return static_cast<int>(Visible.rend() - hidden) - 1;
}

int Pool::HiddenCount() const {
    return static_cast<int>(std::count(Visible.begin(), Visible.end(), std::uint8_t{0}));
}

int Pool::NextAt(int from, float left, float top) const {
    const std::size_t count = Top.size();
    for (auto i = static_cast<std::size_t>(from); i < count; ++i) {
        if (Top[i] == top && Left[i] - 1.0F < left && left < Left[i] + 1.0F) {
            return static_cast<int>(i);
        }
    }
    return Count();
}

} // namespace tumbledeep
