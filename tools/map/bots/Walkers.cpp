// The bots' choices, one key to a beat.
#include "map/bots/Walkers.h"

#include "map/bots/Ways.h"

namespace tumbledeep {

namespace {

/// Plays beats until the map ends or the time is over; `choose` gives a key for each.
RunEnd RunBeats(Board& board, std::int64_t ticks, const auto& choose) {
    RunEnd run;
    while (!run.IsOver() && run.Ticks < ticks) {
        const RunEnd beat = PlayBeat(board, choose(board));
        run = {beat.End, run.Ticks + beat.Ticks};
    }
    return run;
}

char TowardsNearestGem(const Board& board) {
    const Ways ways(board, Ways::Through::Free);
    const Pool& gems = board.Pools[Kind::Gem1Type];
    int nearest = Ways::None;
    char key = ' ';
    for (const int gem : gems.InTurn()) {
        const int far = ways.To(gems.CellOf(gem));
        if (far == 0 || far >= nearest) continue;
        nearest = far;
        key = ways.FirstKey(gems.CellOf(gem));
    }
    return key;
}

} // namespace

RunEnd PlayBeat(Board& board, char key, int ticks, int delay) {
    RunEnd run;
    while (run.Ticks < ticks && !run.IsOver()) {
        const bool isPressed = run.Ticks == delay && key != ' ';
        run.End = board.Period(isPressed ? std::string_view(&key, 1) : std::string_view(), {});
        ++run.Ticks;
    }
    return run;
}

RunEnd RunIdle(Board board, std::int64_t ticks) {
    return RunBeats(board, ticks, [](const Board&) { return ' '; });
}

RunEnd RunRandom(Board board, std::uint32_t seed, std::int64_t ticks) {
    Random random;
    random.Seed(seed);
    constexpr std::string_view keys = "wasd";
    return RunBeats(board, ticks, [&](const Board&) {
        return keys[static_cast<std::size_t>(random.Rnd() * static_cast<float>(keys.size()))];
    });
}

RunEnd RunGreedy(Board board, std::int64_t ticks, std::string* keys) {
    return RunBeats(board, ticks, [&](const Board& now) {
        const char key = TowardsNearestGem(now);
        if (keys != nullptr) *keys += key;
        return key;
    });
}

} // namespace tumbledeep
