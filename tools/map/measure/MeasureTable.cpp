// The measures as lines for people.
#include "map/info/EndText.h"
#include "map/measure/MapMeasure.h"
#include "map/measure/Percent.h"

#include <cmath>
#include <iomanip>
#include <sstream>

namespace tumbledeep {

namespace {

class Table {
  public:
    std::ostream& Line(std::string_view label) {
        constexpr int column = 16;
        return text << (isFirst ? (isFirst = false, "") : "\n") << std::left << std::setw(column)
                    << label;
    }
    std::string Text() const { return text.str() + '\n'; }

  private:
    std::ostringstream text;
    bool isFirst = true;
};

void AddScript(Table& table, std::string_view label, const ScriptMeasure& script) {
    table.Line(label) << script.File << ": " << script.Study.Keys << " keys, " << std::fixed
                      << std::setprecision(1) << script.Study.Seconds << " s, wins "
                      << Percent(script.Wins) << ", with late keys " << Percent(script.LateWins);
}

} // namespace

std::string TableOf(const MapMeasure& measure) {
    Table table;
    table.Line("map") << measure.Info.Name;
    table.Line("size") << measure.Info.Columns << " x " << measure.Info.Rows << " cells, "
                       << measure.Info.CountOf(Kind::Gem1Type) << " gems";
    std::ostream& kinds = table.Line("kinds");
    for (const Kind kind : measure.Kinds) kinds << KindText(kind) << ' ';
    table.Line("untouched") << EndText(measure.Idle.End) << " after " << measure.Idle.Ticks
                            << " ticks";
    table.Line("first steps") << measure.SafeFirstSteps << " of 4 are safe";
    table.Line("dead gems") << measure.DeadGems;
    for (const ScriptMeasure& script : measure.Solutions) AddScript(table, "solution", script);
    for (const ScriptMeasure& script : measure.Baits) AddScript(table, "bait", script);
    if (const ScriptMeasure* const best = measure.Best()) {
        table.Line("waiting") << Percent(best->Study.WaitingShare) << ", at most " << std::fixed
                              << std::setprecision(1) << best->Study.LongestWait << " s";
        table.Line("objects used") << Percent(best->Study.UsedShare);
    }
    if (measure.WorstTick) {
        table.Line("worst tick") << std::fixed << std::setprecision(3) << *measure.WorstTick
                                 << " ms";
    }
    if (measure.RandomWins) table.Line("random bot") << "wins " << Percent(*measure.RandomWins);
    if (measure.GreedyWins) table.Line("greedy bot") << "wins " << Percent(*measure.GreedyWins);
    if (measure.Search) {
        table.Line("search bot") << (measure.Search->IsWon ? "wins" : "does not win") << " with "
                                 << measure.Search->Boards << " boards";
    }
    if (const auto difficulty = measure.Difficulty()) {
        table.Line("difficulty") << std::lround(*difficulty) << " of 100";
    }
    return table.Text();
}

} // namespace tumbledeep
