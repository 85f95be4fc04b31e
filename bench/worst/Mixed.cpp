// Everything at once: each of the twelve pools full, scattered over one field.
#include "worst/WorstMap.h"

#include "base/Random.h"

#include <array>

namespace tumbledeep {

namespace {

/// Where sprites go; the seed is always the same.
class Scatter {
  public:
    Scatter() { random.Seed(1); }
    int Below(int limit) { return static_cast<int>(random.Rnd() * static_cast<float>(limit)); }
    float Place() { return At(1 + Below(WidestField)); }
    const char* OneOf(std::span<const char* const> words) {
        return words[static_cast<std::size_t>(Below(static_cast<int>(words.size())))];
    }

  private:
    Random random;
};

constexpr std::array Recipes{"0:dirt",        "0:gem1type",     "0:roundrock",   "0:movingmineT",
                             "0:movingmineL", "0:movingmineFL", "0:movingmineP", "0:bang"};
constexpr std::array Tags{"U", "D", "L", "R", "none"};

Board AllPoolsFull(float aside) {
    Scatter scatter;
    std::string map = Endless;
    for (const KindRow& row : PoolKinds()) {
        if (row.Which == Kind::Bang) continue;
        const int count = row.Which == Kind::Gem1Type ? Full - 1 : Full;
        for (int i = 0; i < count; ++i) {
            Object object{std::string(row.Text), ""};
            if (row.Tag == TagUse::Heading) object.Tag = scatter.OneOf(Tags);
            if (row.Tag == TagUse::Recipe) object.Tag = scatter.OneOf(Recipes);
            const float left = scatter.Place();
            const float top = scatter.Place();
            map += LineOf(object, row.Which == Kind::Factory ? left : left + aside, top);
        }
    }
    Board board = LoadMap(map, 1);
    board.Stamp(Kind::MovingMinePP);
    while (board.Pools[Kind::Bang].Count() <= Full) {
        const float left = scatter.Place();
        const float top = scatter.Place();
        AddBang(board, left, top);
    }
    return board;
}

constexpr WorstMap MixedList[] = {
    {"AllPoolsFull/on the pitch", [] { return AllPoolsFull(0); }, WholeCycle, "wasd"},
    {"AllPoolsFull/7 twips off", [] { return AllPoolsFull(7); }, WholeCycle, "wasd"},
};

} // namespace

std::span<const WorstMap> MixedMaps() { return MixedList; }

} // namespace tumbledeep
