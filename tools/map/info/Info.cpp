// A map's figures in words. What they are is MapInfo.h's.
#include "map/Commands.h"
#include "map/MapCall.h"
#include "map/info/MapInfo.h"

#include <iomanip>
#include <iostream>

namespace tumbledeep {

namespace {

constexpr int Column = 14;

std::ostream& Label(std::string_view label) {
    return std::cout << std::left << std::setw(Column) << label;
}

void PrintTitle(std::string_view title) {
    for (const char* label = "title";; label = "") {
        const std::size_t end = title.find('\n');
        Label(label) << title.substr(0, end) << '\n';
        if (end == std::string_view::npos) return;
        title.remove_prefix(end + 1);
    }
}

void PrintCounts(const MapInfo& info) {
    for (const KindRow& row : PoolKinds()) {
        const int count = info.CountOf(row.Which);
        if (count > 0) Label(row.Text) << std::right << std::setw(6) << count << '\n';
    }
}

void PrintFactory(const FactoryInfo& factory) {
    Label("factory") << "column " << factory.Column << ", row " << factory.Row << ": makes ";
    if (factory.Made) {
        std::cout << KindText(*factory.Made) << " every " << factory.Every << " ms\n";
    } else {
        std::cout << "nothing, by the recipe \"" << factory.Tag << "\"\n";
    }
}

void PrintMinute(const MapInfo& info) {
    std::cout << std::fixed << std::setprecision(3);
    Label("load") << info.Times.LoadTime() << " ms\n";
    Label("worst tick") << info.Times.WorstTime() << " ms, tick " << info.Times.WorstStep() << '\n';
    Label("first minute") << (info.End == Outcome::Running ? "still running after "
                              : info.End == Outcome::Won   ? "won at tick "
                                                           : "died at tick ")
                          << info.Ticks << (info.End == Outcome::Running ? " ticks\n" : "\n");
}

void Print(const MapInfo& info) {
    Label("map") << info.Name << '\n';
    for (const std::string& title : info.Titles) PrintTitle(title);
    Label("size") << info.Columns << " x " << info.Rows << " cells\n";
    Label("gems") << info.CountOf(Kind::Gem1Type) << '\n';
    Label("players") << info.CountOf(Kind::You) << "\n\n";
    PrintCounts(info);
    if (!info.Factories.empty()) std::cout << '\n';
    for (const FactoryInfo& factory : info.Factories) PrintFactory(factory);
    std::cout << '\n';
    PrintMinute(info);
}

} // namespace

int Info(Words words) {
    const MapCall call = ReadMapCall(words, {"--json"});
    const MapInfo info = StudyMap(call.Map);
    if (call.Json) {
        std::cout << JsonOf(info);
    } else {
        Print(info);
    }
    return 0;
}

} // namespace tumbledeep
