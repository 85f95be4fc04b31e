// A 64-bit hash, the same on every host: numbers and texts go in one after the other, Value() gives
// what they come to. It tells states of the game apart in tests and tools and keeps no secrets.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <string_view>

namespace tumbledeep {

class Hash {
  public:
    /// Takes a value in. The order of the values counts; numbers with a point count by their bits,
    /// a text with its length.
    template <std::integral Number> constexpr void Add(Number number) {
        state = (state ^ static_cast<std::uint64_t>(number)) * 0x9E3779B97F4A7C15U;
        state ^= state >> 29U;
    }
    constexpr void Add(float number) { Add(std::bit_cast<std::uint32_t>(number)); }
    constexpr void Add(double number) { Add(std::bit_cast<std::uint64_t>(number)); }
    constexpr void Add(std::string_view text) {
        Add(text.size());
        for (const char c : text) Add(static_cast<unsigned char>(c));
    }

    constexpr std::uint64_t Value() const { return state; }

  private:
    std::uint64_t state = 0xCBF29CE484222325U;
};

} // namespace tumbledeep
