// What counts as waiting, and what as being used.
#include "map/measure/SolutionWatch.h"

#include "headless/Timing.h"
#include "map/bots/Replay.h"
#include "map/bots/Ways.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace tumbledeep {

namespace {

constexpr double TicksPerSecond = 100;

using Do = PlayerAct::Do;

/// Time in which no key comes and none is held, beyond what a hand takes from one to the next.
void StudyWaits(const Script& script, SolutionStudy& study) {
    constexpr std::int64_t usual = 2LL * BeatTicks;
    std::int64_t last = 0;
    std::int64_t waited = 0;
    std::int64_t longest = 0;
    int held = 0;
    for (const ScriptEvent& event : script.Events) {
        const std::int64_t gap = event.Step - last;
        if (held == 0 && gap > usual && last > 0) {
            waited += gap - BeatTicks;
            longest = std::max(longest, gap - BeatTicks);
        }
        held += event.Act.What == Do::Press ? 1 : event.Act.What == Do::Release ? -1 : 0;
        study.Keys += event.Act.What == Do::Type || event.Act.What == Do::Press;
        last = event.Step;
    }
    study.LongestWait = static_cast<double>(longest) / TicksPerSecond;
    study.WaitingShare = last > 0 ? static_cast<double>(waited) / static_cast<double>(last) : 0;
}

/// The objects of a map, and which of them the player has come near or made go.
class Uses {
  public:
    explicit Uses(const Board& start) {
        for (const KindRow& row : PoolKinds()) {
            if (row.Which == Kind::HardDirt || row.Which == Kind::Dirt) continue;
            for (const int index : start.Pools[row.Which].InTurn())
                things.push_back({row.Which, index});
        }
    }

    void See(const Board& board) {
        const Cell player = PlayerCell(board);
        for (Thing& thing : things) {
            if (thing.IsUsed) continue;
            const Pool& pool = board.Pools[thing.Which];
            thing.IsUsed = !pool[thing.Index].Visible || IsNear(pool.CellOf(thing.Index), player);
        }
    }

    double Share() const {
        if (things.empty()) return 1;
        return static_cast<double>(std::ranges::count(things, true, &Thing::IsUsed)) /
               static_cast<double>(things.size());
    }

  private:
    struct Thing {
        Kind Which;
        int Index;
        bool IsUsed = false;
    };

    /// So near that it was passed, pushed, feared or made use of.
    static bool IsNear(Cell a, Cell b) {
        constexpr int near = 3;
        return std::abs(a.Col() - b.Col()) <= near && std::abs(a.Row() - b.Row()) <= near;
    }

    std::vector<Thing> things;
};

} // namespace

SolutionStudy Watch(const Board& start, const Script& script) {
    SolutionStudy study;
    StudyWaits(script, study);
    constexpr std::int64_t rest = 1000;
    Uses uses(start);
    Timing timing;
    std::int64_t step = 0;
    Board board = start;
    // The time between two looks is that of one tick, and of what the player does before it.
    timing.TickBegins();
    study.End = PlayScript(board, script, rest, [&](const Board& now) {
        timing.TickEnds(++step);
        uses.See(now);
        timing.TickBegins();
    });
    study.Seconds = static_cast<double>(study.End.Ticks) / TicksPerSecond;
    study.UsedShare = uses.Share();
    study.WorstTick = timing.WorstTime();
    return study;
}

} // namespace tumbledeep
