// Every choice is a draw from one generator, so a seed names a map on every host.
#include "soak/RandomMap.h"

#include "platform/Random.h"

#include <array>
#include <cstdlib>
#include <string_view>

namespace tumbledeep {

namespace {

/// Dirt and walls leave room for the others.
constexpr std::array<std::string_view, 16> Kinds{
    "dirt",        "dirt",         "dirt",        "dirt",        "harddirt",    "harddirt",
    "harddirt",    "gem1type",     "roundrock",   "bang",        "movingmineT", "movingmineL",
    "movingmineR", "movingmineFL", "movingmineP", "movingminePP"};
constexpr std::array<std::string_view, 10> Tags{"U", "D", "L", "R", "U", "D", "L", "R", "u", "UD"};
constexpr std::array<std::string_view, 5> OddRecipes{"x:dirt", "5", "0:you", "0:factory", "12"};

} // namespace

std::string RandomMap(std::uint32_t seed) {
    Random random;
    random.Seed(seed);
    const auto below = [&](int limit) {
        return static_cast<int>(random.Next() * static_cast<float>(limit));
    };
    const auto oneOf = [&](const auto& table) {
        return std::string(table[static_cast<std::size_t>(below(static_cast<int>(table.size())))]);
    };
    std::string text;
    const auto line = [&](const std::string& keyword, int col, int row, float aside = 0) {
        text += keyword + " " + std::to_string(static_cast<float>(row * 360) + aside) + " " +
                std::to_string(static_cast<float>(col * 360) - aside);
        if (keyword == "factory") {
            text += " " + (below(5) == 0 ? oneOf(OddRecipes)
                                         : std::to_string(below(10)) + ":" + oneOf(Kinds));
        } else if (keyword.starts_with("movingmine") && keyword != "movingmineT") {
            text += " " + oneOf(Tags);
        }
        text += "\n";
    };
    const int largest = below(10) == 0 ? 301 : 40;
    const int width = 1 + below(largest);
    const int height = 1 + below(largest);
    const int density = below(80);
    const int youCol = below(width);
    const int youRow = below(height);
    const bool walls = below(3) > 0;
    // Walls all round the player: nothing that moves can end the run early.
    const bool sheltered = below(3) > 0;
    if (below(10) > 0) line("you", youCol, youRow);
    if (below(10) > 0) line("gem1type", 300, 300);
    for (int row = 0; row < height; ++row) {
        for (int col = 0; col < width; ++col) {
            const bool edge = row == 0 || col == 0 || row == height - 1 || col == width - 1;
            const bool near = std::abs(col - youCol) < 2 && std::abs(row - youRow) < 2;
            if ((walls && edge) || (sheltered && near)) {
                if (col != youCol || row != youRow) line("harddirt", col, row);
            } else if (below(100) < density) {
                const float aside = below(20) == 0 ? random.Next() * 360.0F : 0.0F;
                line(below(50) == 0 ? "factory" : oneOf(Kinds), col, row, aside);
            }
        }
    }
    return text;
}

} // namespace tumbledeep
