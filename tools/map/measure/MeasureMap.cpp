// The bots and scripts, one after the other.
#include "map/LoadSource.h"
#include "map/bots/Parallel.h"
#include "map/bots/Progress.h"
#include "map/bots/Replay.h"
#include "map/check/Checks.h"
#include "map/measure/MapMeasure.h"
#include "map/solve/Search.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>

namespace tumbledeep {

namespace {

constexpr int RandomRuns = 1000;
constexpr int GreedyRuns = 50;
constexpr std::int64_t IdleTicks = 1000;

/// Every road to a map's end that a bot or a script tries, on one board.
class Measuring {
  public:
    Measuring(const MapSource& map, Progress& progress)
        : source(map), bar(progress), start(LoadSource(map)) {}

    void Untouched(MapMeasure& measure) {
        bar.Show(0, "untouched");
        measure.Idle = RunIdle(start, IdleTicks);
        constexpr int look = 300;
        for (const char key : {'w', 'a', 's', 'd'}) {
            Board board = start;
            const RunEnd step = PlayBeat(board, key, look);
            measure.SafeFirstSteps += !step.IsOver() || step.IsWon();
        }
        measure.DeadGems = static_cast<int>(CheckReach(ReadChecked(source)).size());
    }

    ScriptMeasure Try(const std::filesystem::path& file, int seeds) {
        bar.Show(0, file.filename().string());
        const Script script = ScriptFrom(file.string());
        const auto part = [&](int wins) { return static_cast<double>(wins) / seeds; };
        return {file.filename().string(), part(CountWins(start, script, seeds, false)),
                part(seeds > 1 ? CountWins(start, script, seeds, true) : 0), Watch(start, script)};
    }

    /// The part of a bot's runs that win; `run` gets a board and a seed.
    double Bot(const std::string& name, int runs, const auto& run) {
        std::atomic<int> wins{0};
        std::atomic<int> done{0};
        ForAll(runs, [&](int i) {
            const auto seed = static_cast<std::uint32_t>(i + 1);
            Board board = start;
            board.Randomize(seed);
            wins += run(std::move(board), seed).IsWon();
            bar.Show(static_cast<double>(++done) / runs, name);
        });
        return static_cast<double>(wins) / runs;
    }

    /// A bot gets a minute, and three times what the solution takes.
    static std::int64_t BotTicks(const MapMeasure& measure) {
        const ScriptMeasure* const best = measure.Best();
        constexpr double ticksPerSecond = 100;
        constexpr double patience = 3;
        const double needed = best == nullptr ? 0 : best->Study.Seconds * ticksPerSecond * patience;
        return std::max<std::int64_t>(MinuteTicks, std::llround(needed));
    }

    void Bots(MapMeasure& measure) {
        const std::int64_t ticks = BotTicks(measure);
        measure.RandomWins = Bot("random bot", RandomRuns, [&](Board board, std::uint32_t seed) {
            return RunRandom(std::move(board), seed, MinuteTicks);
        });
        measure.GreedyWins = Bot("greedy bot", GreedyRuns, [&](Board board, std::uint32_t) {
            return RunGreedy(std::move(board), ticks);
        });
    }

    void SearchBot(MapMeasure& measure, int seconds) {
        SearchOptions options;
        const auto begun = std::chrono::steady_clock::now();
        options.Until = begun + std::chrono::seconds(seconds);
        options.Width = FirstWidth(start);
        SearchMeasure search;
        constexpr int widest = 20'000;
        for (; options.Width <= widest && !search.IsWon; options.Width *= 4) {
            const SearchEnd end = Search(start, options, [&](int gemsLeft, int beats) {
                search.Boards += options.Width;
                const std::chrono::duration<double> spent =
                    std::chrono::steady_clock::now() - begun;
                bar.Show(spent.count() / seconds, "search of " + std::to_string(options.Width) +
                                                      " boards: " + std::to_string(gemsLeft) +
                                                      " gems left after " + std::to_string(beats) +
                                                      " beats");
            });
            search.IsWon = end.IsWon;
            if (end.TimeIsOver) break;
        }
        measure.Search = search;
    }

  private:
    const MapSource& source;
    Progress& bar;
    Board start;
};

void TakeScripts(MapMeasure& measure, Measuring& measuring) {
    const MapScripts scripts = ScriptsOf(measure.Info.Name);
    for (const auto& file : scripts.Solutions) {
        measure.Solutions.push_back(measuring.Try(file, measure.Seeds));
    }
    std::stable_sort(measure.Solutions.begin(), measure.Solutions.end(),
                     [](const ScriptMeasure& a, const ScriptMeasure& b) {
                         return a.Wins + a.LateWins > b.Wins + b.LateWins;
                     });
    for (const auto& file : scripts.Baits) {
        measure.Baits.push_back(measuring.Try(file, measure.Seeds));
    }
    if (measure.WorstTick && measure.Best() != nullptr) {
        measure.WorstTick = std::max(*measure.WorstTick, measure.Best()->Study.WorstTick);
    }
}

} // namespace

MapMeasure MeasureMap(const std::string& name, const MeasureOptions& options, Progress& bar) {
    constexpr int allSeeds = 50;
    constexpr int oneSeed = 1;
    MapMeasure measure;
    const MapSource source = ReadMapSource(name);
    measure.Info = StudyMap(name);
    if (!options.Quick) measure.WorstTick = measure.Info.Times.WorstTime();
    for (const KindRow& row : PoolKinds()) {
        const bool isPlain =
            row.Which == Kind::HardDirt || row.Which == Kind::Dirt || row.Which == Kind::Gem1Type;
        if (!isPlain && measure.Info.CountOf(row.Which) > 0) measure.Kinds.push_back(row.Which);
    }
    measure.Seeds = options.Quick ? oneSeed : allSeeds;
    Measuring measuring(source, bar);
    measuring.Untouched(measure);
    TakeScripts(measure, measuring);
    if (!options.Quick) {
        measuring.Bots(measure);
        measuring.SearchBot(measure, options.SearchSeconds);
    }
    return measure;
}

std::optional<double> MapMeasure::Difficulty() const {
    if (!GreedyWins || !Search || Best() == nullptr) return std::nullopt;
    // A search of 100 boards is no labour, one of three million is all that can be asked for.
    const double labour =
        (std::log10(static_cast<double>(std::max<std::int64_t>(100, Search->Boards))) - 2) / 4.5;
    const double length = std::log2(std::max(20, Best()->Study.Keys) / 20.0) / 5;
    constexpr double quarter = 25;
    return quarter * (1 - *GreedyWins + 1 - Best()->LateWins +
                      (Search->IsWon ? std::min(1.0, labour) : 1.0) + std::min(1.0, length));
}

} // namespace tumbledeep
