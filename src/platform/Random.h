// The one random generator, the same on every host.
#pragma once

#include <cstdint>
#include <random>

namespace tumbledeep {

class Random {
  public:
    void Seed(std::uint32_t seed) { engine.seed(seed); }

    /// The next number, 0 <= r < 1: the upper 24 bits of an output, exact in single precision.
    float Next() { return static_cast<float>(engine() >> 8U) * 0x1p-24F; }

  private:
    std::mt19937 engine;
};

} // namespace tumbledeep
