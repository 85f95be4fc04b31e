// The squares lie so that a sprite on the pitch has its corner in the middle of one. Each list
// serves all squares that lie a multiple of `Across` apart, so that there is one for every place,
// however far out.
#include "desktop/SpriteIndex.h"

#include <algorithm>

namespace tumbledeep {

namespace {

constexpr int Side = 24;
/// More than the grid has columns or rows, and a power of two.
constexpr int Across = 512;

/// The square round 0 is a larger one.
int SquareAlong(int pixel) { return (pixel + Side / 2) / Side; }

std::size_t Wrapped(int square) { return static_cast<unsigned>(square) % Across; }

std::size_t ListOf(int col, int row) { return Wrapped(row) * Across + Wrapped(col); }

std::size_t ListAt(QPoint corner) {
    return ListOf(SquareAlong(corner.x()), SquareAlong(corner.y()));
}

} // namespace

SpriteIndex::SpriteIndex() : firsts(std::size_t{Across} * Across, SpriteNumber::None) {}

void SpriteIndex::Add(SpriteNumber number, QPoint corner) {
    auto& layer = links[LayerOf(number)];
    layer.resize(std::max(layer.size(), IndexOf(number) + 1));
    SpriteNumber& first = firsts[ListAt(corner)];
    At(number) = {SpriteNumber::None, first};
    if (first != SpriteNumber::None) At(first).Before = number;
    first = number;
}

void SpriteIndex::Remove(SpriteNumber number, QPoint corner) {
    const auto [before, behind] = At(number);
    (before == SpriteNumber::None ? firsts[ListAt(corner)] : At(before).Behind) = behind;
    if (behind != SpriteNumber::None) At(behind).Before = before;
}

std::vector<SpriteNumber> SpriteIndex::Near(const QRect& part) const {
    std::vector<SpriteNumber> found;
    const int left = SquareAlong(part.left());
    const int top = SquareAlong(part.top());
    // A part so large that squares repeat in it takes each list once.
    const int right = std::min(SquareAlong(part.right()), left + Across - 1);
    const int bottom = std::min(SquareAlong(part.bottom()), top + Across - 1);
    for (int row = top; row <= bottom; ++row) {
        for (int col = left; col <= right; ++col) {
            for (SpriteNumber number = firsts[ListOf(col, row)]; number != SpriteNumber::None;
                 number = At(number).Behind) {
                found.push_back(number);
            }
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace tumbledeep
