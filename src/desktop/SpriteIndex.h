// Finds sprites by their place. Space is cut into squares, each with a list of the sprites whose
// corner lies in it, so that adding, removing and finding cost the same on every map. Which sprites
// there are and how they look is BoardLook's.
#pragma once

#include <QRect>

#include <array>
#include <cstdint>
#include <vector>

namespace tumbledeep {

/// A sprite by the layer in which it is painted and its index there. Rising numbers are the order
/// of painting.
enum class SpriteNumber : std::uint32_t { None = UINT32_MAX };

inline constexpr std::size_t MostLayers = 16;
inline constexpr unsigned IndexBits = 15;

constexpr SpriteNumber NumberOf(std::size_t layer, int index) {
    return static_cast<SpriteNumber>(layer << IndexBits | static_cast<unsigned>(index));
}
constexpr std::size_t LayerOf(SpriteNumber number) {
    return static_cast<std::size_t>(number) >> IndexBits;
}
constexpr std::size_t IndexOf(SpriteNumber number) {
    return static_cast<std::size_t>(number) & ((1U << IndexBits) - 1);
}

class SpriteIndex {
  public:
    SpriteIndex();

    // Corners are in pixels of the game.

    /// Adds a sprite that is not there yet.
    void Add(SpriteNumber number, QPoint corner);
    /// Removes a sprite that has been added with that corner.
    void Remove(SpriteNumber number, QPoint corner);
    /// All sprites with a corner in that part, and some others near it or far away, by rising
    /// number.
    std::vector<SpriteNumber> Near(const QRect& part) const;

  private:
    /// A sprite's neighbours in the list of its square.
    struct Link {
        SpriteNumber Before;
        SpriteNumber Behind;
    };
    Link& At(SpriteNumber number) { return links[LayerOf(number)][IndexOf(number)]; }
    const Link& At(SpriteNumber number) const { return links[LayerOf(number)][IndexOf(number)]; }

    std::vector<SpriteNumber> firsts; ///< the first sprite of each square
    std::array<std::vector<Link>, MostLayers> links;
};

} // namespace tumbledeep
