// A seeded player on seeded maps: the program from start to start, with first starts, a map list,
// deaths, wins and menu entries, as far from careful play as it gets. A seed goes in, a game to
// play and hash comes out. tumbledeep-soak and the tests of play as a whole use it.
#pragma once

#include "base/Hash.h"
#include "base/Random.h"
#include "host/MemoryPlatform.h"
#include "windows/frmMain.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

namespace tumbledeep {

/// Choices from one generator, so that a seed names a whole game on every host.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) { random.Seed(seed); }
    /// A whole number from 0, below a limit.
    int Below(int limit) { return static_cast<int>(random.Rnd() * static_cast<float>(limit)); }
    /// True once in so many times.
    bool Once(int in) { return Below(in) == 0; }
    /// A word of a text, whose words stand one blank apart; two blanks make an empty one.
    std::string OneOf(std::string_view words) {
        int skip = Below(static_cast<int>(std::count(words.begin(), words.end(), ' ')) + 1);
        while (skip-- > 0) words.remove_prefix(words.find(' ') + 1);
        return std::string(words.substr(0, words.find(' ')));
    }

  private:
    Random random;
};

/// The text of a map whose mixture of kinds is the seed's own.
std::string RandomMap(std::uint32_t seed);

/// The program in memory with a player whose every act is drawn from the seed.
class RandomGame {
  public:
    explicit RandomGame(std::uint32_t seed);

    /// One period of the timer, with whatever the player does in it. When the process has ended,
    /// the period starts the next one instead.
    void Period();
    /// How many ticks of the clock it has played; there is none while the game is paused or starts.
    std::int64_t Ticks() const { return ticks; }
    /// Takes the state into a hash: the board, the view, the captions, the settings and all that
    /// the program has asked for since the last call.
    void AddTo(Hash& hash);

  private:
    void Start();
    void Act();

    Dice dice;
    MemoryPlatform services;
    std::unique_ptr<frmMain> game;
    std::int64_t ticks = 0;
};

} // namespace tumbledeep
