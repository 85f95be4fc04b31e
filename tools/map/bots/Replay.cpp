// Periods of the timer as the window and the trace run them.
#include "map/bots/Replay.h"

#include "map/MapSource.h"
#include "map/bots/Parallel.h"
#include "windows/frmMain.h"

#include <atomic>

namespace tumbledeep {

namespace {

/// The window's side of the keys: which are held, and what switches the clock.
class Hands {
  public:
    void Take(Board& board, const PlayerAct& act) {
        using Do = PlayerAct::Do;
        bool& runs = board.Interval100Timer.Enabled;
        switch (act.What) {
        case Do::Type: board.MoveYou(act.Text); break;
        case Do::Press: Held.Set(act.Key, true); break;
        case Do::Release: Held.Set(act.Key, false); break;
        case Do::Click: runs = !runs; break;
        case Do::GotFocus: runs = true; break;
        case Do::LostFocus: runs = false; break;
        default: break;
        }
    }

    HeldKeys Held;
};

} // namespace

Script ScriptFrom(const std::string& file) {
    return ReadScript(file, BytesOf(file), &IsMenuHandler);
}

Script Late(Script script, std::uint32_t seed) {
    Random random;
    random.Seed(seed);
    std::int64_t last = 0;
    for (ScriptEvent& event : script.Events) {
        const auto late = static_cast<int>(random.Rnd() * (LatestTicks + 1));
        last = std::max(last, event.Step + late);
        event.Step = last;
    }
    return script;
}

std::int64_t LastStep(const Script& script) {
    return script.Events.empty() ? 0 : script.Events.back().Step;
}

std::int64_t RestBeforePlan(const Script& before) {
    constexpr std::int64_t look = 50;
    return before.Events.empty() ? look : LatestTicks;
}

RunEnd PlayScript(Board& board, const Script& script, std::int64_t rest,
                  const std::function<void(const Board& board)>& seen) {
    RunEnd run;
    Hands hands;
    auto event = script.Events.begin();
    const std::int64_t last = LastStep(script) + rest;
    while (run.Ticks < last && !run.IsOver()) {
        ++run.Ticks;
        for (; event != script.Events.end() && event->Step == run.Ticks; ++event) {
            hands.Take(board, event->Act);
        }
        run.End = board.Period({}, hands.Held);
        if (seen) seen(board);
    }
    return run;
}

int CountWins(const Board& start, const Script& script, int seeds, bool late) {
    constexpr std::int64_t rest = 1000;
    std::atomic<int> wins{0};
    ForAll(seeds, [&](int i) {
        const auto seed = static_cast<std::uint32_t>(i + 1);
        Board board = start;
        board.Randomize(seed);
        wins += PlayScript(board, late ? Late(script, seed) : script, rest).IsWon();
    });
    return wins;
}

} // namespace tumbledeep
