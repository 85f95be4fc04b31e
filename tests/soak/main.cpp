// tumbledeep-soak [FIRST_SEED] [COUNT] [TICKS]: random maps by the hundred, best under sanitizers.
#include "soak/Soak.h"

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
    const auto number = [&](int index, unsigned long otherwise) {
        return index < argc ? std::strtoul(argv[index], nullptr, 10) : otherwise;
    };
    const unsigned long first = number(1, 1);
    const unsigned long count = number(2, 1000);
    const auto ticks = static_cast<int>(number(3, 3000));
    for (unsigned long seed = first; seed < first + count; ++seed) {
        const std::string fault = tumbledeep::Soak(static_cast<std::uint32_t>(seed), ticks);
        if (fault.empty()) continue;
        std::cerr << fault << '\n';
        return 1;
    }
    std::cout << count << " maps from seed " << first << ", " << ticks << " ticks each: no fault\n";
    return 0;
}
