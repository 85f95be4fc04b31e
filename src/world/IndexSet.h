// A set of indexes of a pool that knows its size and its highest member at once, however many there
// are: a bit for each index, and over every 64 of them one that tells whether any is set.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace tumbledeep {

class IndexSet {
  public:
    /// Members are from 0 up to this, not included.
    static constexpr int Limit = 32768;

    /// How many members there are.
    int Count() const { return count; }

    /// The highest member, -1 when there is none.
    int Last() const {
        if (count == 0) return -1;
        for (std::size_t i = heads.size(); i-- > 0;) {
            if (heads.at(i) == 0) continue;
            const std::size_t word = i * 64 + Highest(heads.at(i));
            return static_cast<int>(word * 64 + Highest(words[word]));
        }
        return -1;
    }

    void Insert(int index) {
        const std::size_t word = Word(index);
        if (word >= words.size()) words.resize(word + 1);
        count += (words[word] & Bit(index)) == 0;
        words[word] |= Bit(index);
        heads.at(word / 64) |= std::uint64_t{1} << word % 64;
    }

    void Erase(int index) {
        const std::size_t word = Word(index);
        if (word >= words.size()) return;
        count -= (words[word] & Bit(index)) != 0;
        words[word] &= ~Bit(index);
        if (words[word] == 0) heads.at(word / 64) &= ~(std::uint64_t{1} << word % 64);
    }

  private:
    static std::size_t Word(int index) { return static_cast<std::size_t>(index) / 64; }
    static std::uint64_t Bit(int index) {
        return std::uint64_t{1} << (static_cast<unsigned>(index) % 64);
    }
    static std::size_t Highest(std::uint64_t bits) {
        return 63U - static_cast<std::size_t>(std::countl_zero(bits));
    }

    int count = 0;
    std::array<std::uint64_t, Limit / 64 / 64> heads{}; ///< a bit for each word that is not 0
    std::vector<std::uint64_t> words;
};

} // namespace tumbledeep
