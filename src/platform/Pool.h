// A growable row of sprites of one kind. What scans read lies packed, one array a field: a full
// pool is scanned many times in one tick.
#pragma once

#include "platform/Sprite.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tumbledeep {

/// One sprite of a pool, as references into it; good until the pool next grows.
struct PoolSprite {
    float& Left;
    float& Top;
    std::uint8_t& Visible;
    std::string& Tag;
    tumbledeep::Picture& Picture;
};

struct Pool {
    /// The most sprites that a pool can hold, the template included.
    static constexpr int Limit = 32767;

    std::vector<float> Left;
    std::vector<float> Top;
    std::vector<std::uint8_t> Visible;
    std::vector<std::string> Tag;
    std::vector<tumbledeep::Picture> Picture;

    /// A pool of one hidden sprite, the template at index 0.
    Pool(float left, float top, tumbledeep::Picture picture);

    /// The number of sprites, hidden ones and the template included.
    int Count() const { return static_cast<int>(Visible.size()); }
    bool Full() const { return Count() >= Limit; }

    /// Adds the sprite with the next index, a hidden copy of the template, and returns it.
    /// The pool must not be full.
    PoolSprite Add();

    PoolSprite operator[](int index) {
        const auto i = static_cast<std::size_t>(index);
        return {Left[i], Top[i], Visible[i], Tag[i], Picture[i]};
    }

    bool Shown(int index) const { return Visible[static_cast<std::size_t>(index)] != 0; }

    /// The highest index of a hidden sprite, -1 when all are visible.
    int LastHidden() const;

    /// How many sprites are hidden, the template among them.
    int HiddenCount() const;

    /// The first index from `from` on whose sprite stands at `top` exactly and within 1 twip of
    /// `left`, visible or not; Count() when there is none.
    int NextAt(int from, float left, float top) const;
};

} // namespace tumbledeep
