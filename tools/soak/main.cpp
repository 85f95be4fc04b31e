// tumbledeep-soak: plays random games for as long as one likes, for the sanitizers to watch. It
// prints a line for each seed with the hash of all its states, which tells two builds apart. The
// games are RandomGame.h's.
#include "soak/RandomGame.h"

#include "base/Number.h"

#include <iostream>
#include <span>

int main(int argc, char** argv) {
    using namespace tumbledeep;
    // The first seed, how many, and the periods of each.
    std::array<std::int64_t, 3> numbers{1, 1000, 2000};
    const std::span<char* const> words(argv + 1, static_cast<std::size_t>(argc - 1));
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto number = ReadInteger(words[i]);
        if (i >= numbers.size() || !number || *number < 0) {
            std::cerr << "usage: tumbledeep-soak [FIRST-SEED [SEEDS [PERIODS]]]\n";
            return 2;
        }
        numbers.at(i) = *number;
    }
    for (std::int64_t seed = numbers[0]; seed < numbers[0] + numbers[1]; ++seed) {
        RandomGame game(static_cast<std::uint32_t>(seed));
        Hash hash;
        for (std::int64_t period = 0; period < numbers[2]; ++period) {
            game.Period();
            game.AddTo(hash);
        }
        std::cout << seed << ' ' << std::hex << hash.Value() << std::dec << std::endl;
    }
}
