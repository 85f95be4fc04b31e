// Sixty seeded games, every state hashed. digest.txt holds, for each seed, the hash of its end
// and one letter of the running hash for each period: where the letters first differ, play does.
// When a change of play is intended, TUMBLEDEEP_WRITE_DIGEST=1 writes the file anew, and the commit
// that moves it says why.
#include "soak/RandomGame.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace tumbledeep {

namespace {

constexpr std::uint32_t Seeds = 60;
constexpr int Periods = 400;

std::string Track(std::uint32_t seed) {
    RandomGame game(seed);
    Hash hash;
    std::string letters;
    for (int period = 0; period < Periods; ++period) {
        game.Period();
        game.AddTo(hash);
        letters += static_cast<char>('a' + hash.Value() % 26);
    }
    std::ostringstream line;
    line << seed << ' ' << std::hex << hash.Value() << ' ' << letters;
    return line.str();
}

TEST(Digest, GamesPlayAsTheyDid) {
    if (std::getenv("TUMBLEDEEP_WRITE_DIGEST") != nullptr) {
        std::ofstream file(TUMBLEDEEP_DIGEST);
        for (std::uint32_t seed = 1; seed <= Seeds; ++seed) file << Track(seed) << '\n';
        GTEST_SKIP() << "written";
    }
    std::ifstream file(TUMBLEDEEP_DIGEST);
    std::uint32_t seed = 0;
    for (std::string was; std::getline(file, was);) {
        const std::string now = Track(++seed);
        if (now == was) continue;
        const auto start = static_cast<std::ptrdiff_t>(was.rfind(' ') + 1);
        const auto differ =
            std::mismatch(was.begin() + start, was.end(),
                          now.begin() + static_cast<std::ptrdiff_t>(now.rfind(' ') + 1), now.end());
        FAIL() << "seed " << seed << " first plays otherwise in period "
               << differ.first - was.begin() - start + 1;
    }
    EXPECT_EQ(seed, Seeds);
}

} // namespace

} // namespace tumbledeep
