// Every choice is a draw from one generator, so a seed names a map on every host.
#include "soak/RandomMap.h"

#include "platform/Random.h"

#include <array>
#include <string_view>

namespace tumbledeep {

namespace {

constexpr std::array<std::string_view, 10> Kinds{
    "dirt",        "harddirt",    "gem1type",     "roundrock",   "movingmineT",
    "movingmineL", "movingmineR", "movingmineFL", "movingmineP", "movingminePP"};
constexpr std::array<std::string_view, 6> Tags{"U", "D", "L", "R", "u", "UD"};
constexpr std::array<std::string_view, 6> OddRecipes{"x:dirt",    "5",  "0:you",
                                                     "0:factory", "12", "9"};

class Maker {
  public:
    explicit Maker(std::uint32_t seed) { random.Seed(seed); }

    std::string Map() {
        const int largest = Chance(0.1F) ? 301 : 40;
        const int width = 1 + Below(largest);
        const int height = 1 + Below(largest);
        const float density = random.Next() * 0.8F;
        const bool walls = Chance(0.7F);
        const bool offGrid = Chance(0.3F);
        if (Chance(0.9F)) You(width, height);
        if (Chance(0.9F)) Line("gem1type", 300, 300);
        for (int row = 0; row < height; ++row) {
            for (int col = 0; col < width; ++col) {
                const bool edge = row == 0 || col == 0 || row == height - 1 || col == width - 1;
                if (walls && edge) {
                    Line("harddirt", col, row);
                } else if (Chance(density)) {
                    Thing(col, row, offGrid && Chance(0.2F) ? random.Next() : 0.0F);
                }
            }
        }
        return text;
    }

  private:
    bool Chance(float share) { return random.Next() < share; }
    int Below(int limit) { return static_cast<int>(random.Next() * static_cast<float>(limit)); }
    template <class Table> std::string_view OneOf(const Table& table) {
        return table[static_cast<std::size_t>(Below(static_cast<int>(table.size())))];
    }

    void You(int width, int height) {
        const int col = Below(width);
        const int row = Below(height);
        Line("you", col, row);
        if (Chance(0.3F)) return;
        // Walls all round: nothing that moves can end the run early.
        for (int x = col - 1; x <= col + 1; ++x) {
            for (int y = row - 1; y <= row + 1; ++y) {
                if (x != col || y != row) Line("harddirt", x, y);
            }
        }
    }

    void Thing(int col, int row, float aside) {
        if (Chance(0.02F)) {
            const std::string recipe = Chance(0.2F)
                                           ? std::string(OneOf(OddRecipes))
                                           : std::to_string(Below(10)) + ":" +
                                                 std::string(Chance(0.2F) ? "bang" : OneOf(Kinds));
            return Line("factory", col, row, aside, recipe);
        }
        // Dirt and walls leave room for the others.
        const std::string_view kind =
            Chance(0.5F) ? Kinds[static_cast<std::size_t>(Below(2))] : OneOf(Kinds);
        const bool heads = kind.starts_with("movingmine") && kind != "movingmineT";
        const std::string_view tag =
            Chance(0.9F) ? Tags[static_cast<std::size_t>(Below(4))] : OneOf(Tags);
        Line(kind, col, row, aside, heads ? std::string(tag) : "");
    }

    void Line(std::string_view keyword, int col, int row, float aside = 0,
              const std::string& tag = "") {
        text += keyword;
        text += ' ' + std::to_string(static_cast<float>(row * 360) + aside * 360.0F);
        text += ' ' + std::to_string(static_cast<float>(col * 360) - aside * 360.0F);
        text += tag.empty() ? "\n" : " " + tag + "\n";
    }

    Random random;
    std::string text;
};

} // namespace

std::string RandomMap(std::uint32_t seed) { return Maker(seed).Map(); }

} // namespace tumbledeep
