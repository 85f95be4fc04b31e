// A seeded player on seeded maps: whole sessions of the program, with first starts, a map list,
// deaths, wins and menu entries, as far from careful play as it gets.
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

/// Choices from one generator, so that a seed names a whole session on every host.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) { random.Seed(seed); }
    /// A whole number from 0, below a limit.
    int Below(int limit) { return static_cast<int>(random.Rnd() * static_cast<float>(limit)); }
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

class RandomGame {
  public:
    explicit RandomGame(std::uint32_t seed);

    /// One period of the timer, with whatever the player does in it. When the process has ended,
    /// the next one starts.
    void Period();
    /// Takes all into a hash: the board, the view, the captions, the settings and all that the
    /// program has asked for.
    void AddTo(Hash& hash);

  private:
    void Start();
    void Act();

    Dice dice;
    MemoryPlatform services;
    std::unique_ptr<frmMain> game;
};

} // namespace tumbledeep
