// The one random generator. It is a value: a copy draws on like its original, and a seed gives the
// same numbers on every host. Each Board has one of its own; what is decided by a draw is in
// rules/.
#pragma once

#include <cstdint>
#include <random>

namespace tumbledeep {

class Random {
  public:
    void Seed(std::uint32_t number) {
        engine.seed(number);
        seed = number;
        draws = 0;
    }

    /// The next number, 0 <= r < 1: the upper 24 bits of an output, exact in single precision.
    float Rnd() {
        ++draws;
        return static_cast<float>(engine() >> 8U) * 0x1p-24F;
    }

    /// The last seed, and how many numbers have been drawn since: all that tells two apart.
    std::uint32_t LastSeed() const { return seed; }
    std::uint64_t Draws() const { return draws; }

    friend bool operator==(const Random& a, const Random& b) {
        return a.seed == b.seed && a.draws == b.draws;
    }

  private:
    std::mt19937 engine;
    std::uint32_t seed = std::mt19937::default_seed;
    std::uint64_t draws = 0;
};

} // namespace tumbledeep
