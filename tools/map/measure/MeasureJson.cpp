// The measures for other programs, as one JSON object on one line. Parts are from 0 to 1.
//     map, columns, rows, gems     its name without the extension, the size in cells
//     kinds                        that it holds beside player, walls, dirt and gems
//     idle                         "running", "won" or "died" within 1,000 ticks untouched
//     safe_first_steps             of 4
//     dead_gems                    that no play can get
//     seeds                        that each script was played with
//     solutions, baits             the best first, each with
//         file, keys, seconds
//         wins, late_wins          parts of the seeds, on time and with late keys
//         waiting, longest_wait    part of its time, and in seconds
//         used                     part of the map's objects that it has to do with
//     worst_tick_ms                null from a quick look
//     random, greedy               parts of the bots' runs that win
//     search                       won, boards
//     difficulty                   0 to 100, null without the bots, as are the three above
//     misses                       what its class is held to and it misses, if a class was given
#include "map/measure/MapMeasure.h"

#include "map/info/EndText.h"

#include <filesystem>
#include <nlohmann/json.hpp>

namespace tumbledeep {

namespace {

using Json = nlohmann::ordered_json;

Json ScriptsJson(const std::vector<ScriptMeasure>& scripts) {
    Json all = Json::array();
    for (const ScriptMeasure& script : scripts) {
        all.push_back({{"file", script.File},
                       {"keys", script.Study.Keys},
                       {"seconds", script.Study.Seconds},
                       {"wins", script.Wins},
                       {"late_wins", script.LateWins},
                       {"waiting", script.Study.WaitingShare},
                       {"longest_wait", script.Study.LongestWait},
                       {"used", script.Study.UsedShare}});
    }
    return all;
}

Json Maybe(std::optional<double> value) { return value ? Json(*value) : Json(); }

} // namespace

std::string JsonOf(const MapMeasure& measure, const std::vector<std::string>& misses) {
    Json kinds = Json::array();
    for (const Kind kind : measure.Kinds) kinds.push_back(KindText(kind));
    Json search;
    if (measure.Search)
        search = {{"won", measure.Search->IsWon}, {"boards", measure.Search->Boards}};
    const Json json{
        {"map", std::filesystem::path(measure.Info.Name).stem().string()},
        {"columns", measure.Info.Columns},
        {"rows", measure.Info.Rows},
        {"gems", measure.Info.CountOf(Kind::Gem1Type)},
        {"kinds", kinds},
        {"idle", EndText(measure.Idle.End)},
        {"safe_first_steps", measure.SafeFirstSteps},
        {"dead_gems", measure.DeadGems},
        {"seeds", measure.Seeds},
        {"solutions", ScriptsJson(measure.Solutions)},
        {"baits", ScriptsJson(measure.Baits)},
        {"worst_tick_ms", Maybe(measure.WorstTick)},
        {"random", Maybe(measure.RandomWins)},
        {"greedy", Maybe(measure.GreedyWins)},
        {"search", search},
        {"difficulty", Maybe(measure.Difficulty())},
        {"misses", misses},
    };
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace tumbledeep
