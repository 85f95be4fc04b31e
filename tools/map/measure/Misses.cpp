// What the maps of a class are held to. The bounds were set by the first maps that people liked.
#include "map/measure/MapMeasure.h"
#include "map/measure/Percent.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tumbledeep {

namespace {

/// Parts are from 0 to 1.
struct Bounds {
    char Class;
    double RandomMost;
    double GreedyLeast;
    double GreedyMost;
    double WinsLeast;
    double LateLeast;
    bool StepsSafe;
    bool NeedsBait;
};

constexpr std::array<Bounds, 3> AllBounds{{{'T', 0.20, 0.80, 1.00, 1.00, 0.90, true, false},
                                           {'M', 0.00, 0.00, 0.30, 0.90, 0.60, false, true},
                                           {'H', 0.00, 0.00, 0.05, 0.70, 0.20, false, true}}};

} // namespace

std::vector<std::string> Misses(const MapMeasure& measure, char mapClass) {
    std::vector<std::string> misses;
    const auto hold = [&](bool holds, const std::string& miss) {
        if (!holds) misses.push_back(miss);
    };
    const auto least = [&](double value, double bound, const std::string& what) {
        hold(value >= bound, what + ' ' + Percent(value) + ", at least " + Percent(bound));
    };
    const auto most = [&](double value, double bound, const std::string& what) {
        hold(value <= bound, what + ' ' + Percent(value) + ", at most " + Percent(bound));
    };
    const auto bounds = std::find_if(AllBounds.begin(), AllBounds.end(),
                                     [&](const Bounds& row) { return row.Class == mapClass; });
    if (bounds == AllBounds.end()) return {"there is no class of maps of that name"};

    hold(!measure.Idle.IsOver(), "it ends untouched");
    hold(!bounds->StepsSafe || measure.SafeFirstSteps == 4, "a first step kills");
    hold(measure.DeadGems == 0, "a gem can't be got");
    constexpr double slowTick = 2;
    hold(measure.WorstTick.value_or(0) < slowTick, "a tick takes 2 ms or more");
    constexpr double longWait = 5;
    hold(measure.Best() != nullptr, "there is no solution");
    if (const ScriptMeasure* const best = measure.Best()) {
        hold(best->Study.LongestWait <= longWait, "the solution waits for more than 5 seconds");
        least(best->Wins, bounds->WinsLeast, "the solution wins");
        if (measure.Seeds > 1) {
            least(best->LateWins, bounds->LateLeast, "the solution wins with late keys");
        }
    }
    hold(!bounds->NeedsBait || !measure.Baits.empty(), "there is no bait");
    for (const ScriptMeasure& bait : measure.Baits) most(bait.Wins, 0, bait.File + " wins");
    if (measure.RandomWins) most(*measure.RandomWins, bounds->RandomMost, "the random bot wins");
    if (measure.GreedyWins) {
        least(*measure.GreedyWins, bounds->GreedyLeast, "the greedy bot wins");
        most(*measure.GreedyWins, bounds->GreedyMost, "the greedy bot wins");
    }
    return misses;
}

} // namespace tumbledeep
