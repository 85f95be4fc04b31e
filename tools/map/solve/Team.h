// The same map played several times at once by the same keys, with other seeds and other lateness:
// what a plan must survive to be worth calling one.
#pragma once

#include "formats/Script.h"
#include "map/bots/Walkers.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tumbledeep {

class Team {
  public:
    Team() = default;
    /// So many games, in which a script has been played.
    Team(const Board& start, int games, const Script& before);

    /// One of the games is lost.
    bool IsLost() const { return isLost; }
    /// Plays a key in every game, none for a blank. False when one of them is lost by it.
    bool Play(char key);
    bool IsWon() const;
    /// The most gems left in any of the games.
    int GemsLeft() const;
    /// Less is better: gems left, and how far they are from the player, in the worst of the games.
    float Hope() const;
    /// Equal for teams that will play on alike, but for which of their dirt is gone.
    std::uint64_t Likeness() const;
    /// Equal for teams with the same gems, rocks and mines left in the same places but the mines'.
    std::uint64_t Stock() const;

  private:
    /// Adds a game in which a script has been played, unless that loses it.
    bool Join(const Board& start, std::uint32_t seed, const Script& before);

    struct Game {
        Board Now;
        bool IsWon = false;
    };
    std::vector<Game> games;
    int beat = 0;
    bool isLost = false;
};

} // namespace tumbledeep
