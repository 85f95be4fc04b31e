// The command solve: searches wider and wider until a map is won, then for keys that win it without
// luck and with a hand that is not quite in time, and writes the best that was found.
#include "map/Commands.h"
#include "map/LoadSource.h"
#include "map/MapCall.h"
#include "map/bots/Progress.h"
#include "map/bots/Replay.h"
#include "map/solve/Search.h"
#include "map/solve/SolutionText.h"

#include <iostream>

namespace tumbledeep {

namespace {

constexpr int Trials = 50;

/// Keys that win, and how often they do.
struct Found {
    Script Plan;
    int Wins = 0;     ///< of `Trials` seeds
    int LateWins = 0; ///< the same with every key late at random
    int Worth() const { return Wins + LateWins; }
};

class Solver {
  public:
    Solver(Board from, const std::string& name, int seconds, Script before)
        : start(std::move(from)),
          bar(name),
          until(std::chrono::steady_clock::now() + std::chrono::seconds(seconds)) {
        options.Before = std::move(before);
        options.Until = until;
        options.Width = FirstWidth(start);
    }

    Found Run() {
        constexpr int mostGames = 8;
        constexpr int widest = 20'000;
        while (best.Worth() < 2 * Trials && options.Games <= mostGames && options.Width <= widest) {
            SearchEnd end = Search(start, options, [this](int gemsLeft, int beats) {
                bar.Show(SpentPart(), std::to_string(options.Width) + " boards, " +
                                          std::to_string(options.Games) + " games each, " +
                                          std::to_string(gemsLeft) + " gems left after " +
                                          std::to_string(beats) + " beats");
            });
            if (end.IsWon) {
                Take(Shorten(start, std::move(end.Keys), options));
                options.Games += 2;
            } else {
                if (best.Worth() == 0 && end.GemsLeft < nearest) {
                    nearest = end.GemsLeft;
                    bestPlan = PlanOf(options.Before, end.Keys, BeatTicks);
                }
                if (end.TimeIsOver) break;
                options.Width *= 4;
            }
        }
        if (best.Worth() == 0) best.Plan = bestPlan;
        return best;
    }

    int GemsAtBest() const { return nearest; }

  private:
    double SpentPart() const {
        const std::chrono::duration<double> left = until - std::chrono::steady_clock::now();
        const std::chrono::duration<double> all = until - begun;
        return 1 - left / all;
    }

    void Take(const std::string& keys) {
        Found found{PlanOf(options.Before, keys, BeatTicks)};
        found.Wins = CountWins(start, found.Plan, Trials, false);
        found.LateWins = CountWins(start, found.Plan, Trials, true);
        if (found.Worth() > best.Worth()) best = std::move(found);
    }

    Board start;
    Progress bar;
    std::chrono::steady_clock::time_point begun = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point until;
    SearchOptions options;
    Found best;
    Script bestPlan;
    int nearest = std::numeric_limits<int>::max();
};

/// Writes what the greedy bot does: the plan that a map of any depth should not fall to.
int WriteGreedy(const MapSource& source, const std::string& output) {
    Board board = LoadSource(source);
    PlayScript(board, {}, RestBeforePlan({}));
    std::string keys;
    constexpr std::int64_t aMinute = 6000;
    const RunEnd end = RunGreedy(std::move(board), aMinute, &keys);
    WriteTo(output, SolutionText(source, PlanOf({}, keys, BeatTicks)));
    std::cerr << source.Name << ": the greedy bot " << (end.IsWon() ? "wins\n" : "does not win\n");
    return 0;
}

} // namespace

int Solve(Words words) {
    const MapCall call = ReadMapCall(words, {"-o", "--seconds", "--after", "--greedy"});
    const MapSource source = ReadMapSource(call.Map);
    if (call.Greedy) return WriteGreedy(source, call.Output);
    Script before;
    if (!call.After.empty()) before = ScriptFrom(call.After);
    constexpr int usualSeconds = 60;
    Solver solver(LoadSource(source), call.Map, call.Seconds.value_or(usualSeconds),
                  std::move(before));
    const Found found = solver.Run();
    const bool isWon = found.Worth() > 0;
    if (isWon || !found.Plan.Events.empty()) WriteTo(call.Output, SolutionText(source, found.Plan));
    if (isWon) {
        std::cerr << call.Map << ": wins with " << found.Wins << " of " << Trials
                  << " seeds, and with " << found.LateWins << " when every key is late at random\n";
        return 0;
    }
    std::cerr << call.Map << ": not won; ";
    if (found.Plan.Events.empty()) {
        std::cerr << "nothing was gained\n";
    } else {
        std::cerr << "the script leaves " << solver.GemsAtBest()
                  << " gems; --after goes on from it\n";
    }
    return 1;
}

} // namespace tumbledeep
