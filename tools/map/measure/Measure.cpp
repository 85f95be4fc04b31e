// The command measure. What is measured is MapMeasure.h's.
#include "map/Commands.h"
#include "map/MapCall.h"
#include "map/bots/Progress.h"
#include "map/measure/MapMeasure.h"

#include <iostream>

namespace tumbledeep {

int Measure(Words words) {
    const MapCall call = ReadMapCall(words, {"--json", "--quick", "--goal", "--seconds"});
    if (!call.Goal.empty() && call.Goal != "T" && call.Goal != "M" && call.Goal != "H") {
        throw CallFault("--goal is T, M or H");
    }
    MeasureOptions options;
    options.Quick = call.Quick;
    options.SearchSeconds = call.Seconds.value_or(options.SearchSeconds);
    MapMeasure measure;
    {
        Progress bar(call.Map);
        measure = MeasureMap(call.Map, options, bar);
    }
    std::vector<std::string> misses;
    if (!call.Goal.empty()) misses = Misses(measure, call.Goal.front());
    if (call.Json) {
        std::cout << JsonOf(measure, misses);
    } else {
        std::cout << TableOf(measure);
        for (const std::string& miss : misses) std::cout << "MISSED: " << miss << '\n';
    }
    return misses.empty() ? 0 : 1;
}

} // namespace tumbledeep
