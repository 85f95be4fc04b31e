// The first second, with no key touched.
#include "map/check/Checks.h"

namespace tumbledeep {

Findings CheckStart(const CheckedMap& map) {
    constexpr int ticks = 100;
    if (map.PlayerLines.empty()) return {};
    Board board = map.Start;
    for (int tick = 1; tick <= ticks && board.Result == Outcome::Running; ++tick) {
        const Outcome outcome = board.Tick({});
        if (outcome != Outcome::Died && outcome != Outcome::DiedUntold) continue;
        return {Warning(map.PlayerLines.back(),
                        {"who stands still at the start is dead in tick ", std::to_string(tick),
                         ", before anybody can look round"},
                        {"leave time for a first step, a hundred ticks to a second"})};
    }
    return {};
}

} // namespace tumbledeep
