// tumbledeep-soak: plays random games for as long as one likes, for the sanitizers to watch. It
// prints a line for each seed with the hash of all its states, which tells two builds apart. With
// --quiet a state is hashed at a seed's end alone, which is much faster. How many ticks that were
// it tells on the standard error. The games are RandomGame.h's.
#include "soak/RandomGame.h"

#include "base/Number.h"

#include <array>
#include <iostream>
#include <optional>
#include <span>
#include <string_view>

namespace {

using namespace tumbledeep;

struct Call {
    bool Quiet = false; ///< a state is hashed at a seed's end alone
    /// The first seed, how many, and the periods of each.
    std::array<std::int64_t, 3> Numbers{1, 1000, 2000};
};

std::optional<Call> ReadCall(std::span<char* const> words) {
    Call call;
    if (!words.empty() && std::string_view(words.front()) == "--quiet") {
        call.Quiet = true;
        words = words.subspan(1);
    }
    if (words.size() > call.Numbers.size()) return std::nullopt;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto number = ReadInteger(words[i]);
        if (!number || *number < 0) return std::nullopt;
        call.Numbers.at(i) = *number;
    }
    return call;
}

std::uint64_t HashOf(std::int64_t seed, std::int64_t periods, bool quiet, std::int64_t& ticks) {
    RandomGame game(static_cast<std::uint32_t>(seed));
    Hash hash;
    for (std::int64_t period = 1; period <= periods; ++period) {
        game.Period();
        if (!quiet || period == periods) game.AddTo(hash);
    }
    ticks += game.Ticks();
    return hash.Value();
}

} // namespace

int main(int argc, char** argv) {
    const auto call = ReadCall({argv + 1, static_cast<std::size_t>(argc - 1)});
    if (!call) {
        std::cerr << "usage: tumbledeep-soak [--quiet] [FIRST-SEED [SEEDS [PERIODS]]]\n";
        return 2;
    }
    const auto [first, seeds, periods] = call->Numbers;
    std::int64_t ticks = 0;
    for (std::int64_t seed = first; seed < first + seeds; ++seed) {
        std::cout << seed << ' ' << std::hex << HashOf(seed, periods, call->Quiet, ticks)
                  << std::dec << std::endl;
    }
    std::cerr << ticks << " ticks\n";
}
