// A map's figures for other programs, as one JSON object:
//     file               its name
//     columns, rows      the size of the board's window, in cells
//     counts             objects by kind, under the names that maps have
//     gems, players      likewise; more than one player's line leaves one player, the last
//     titles             their texts, in the map's order
//     factories          each with column, row (from 1), recipe, makes (a kind or null) and
//                        every_ms (a number or null)
//     load_ms            reading the file and setting up the board
//     worst_tick         tick (from 1) and ms of the longest in the first minute
//     first_minute       end ("running", "won" or "died") and ticks that ran, no key touched
#include "map/info/EndText.h"
#include "map/info/MapInfo.h"

#include <nlohmann/json.hpp>

namespace tumbledeep {

namespace {

using Json = nlohmann::ordered_json;

Json FactoryJson(const FactoryInfo& factory) {
    Json json{{"column", factory.Column}, {"row", factory.Row}, {"recipe", factory.Tag}};
    json["makes"] = factory.Made ? Json(KindText(*factory.Made)) : Json();
    json["every_ms"] = factory.Made ? Json(factory.Every) : Json();
    return json;
}

Json CountsJson(const MapInfo& info) {
    Json json = Json::object();
    for (const KindRow& row : PoolKinds()) {
        if (row.Which != Kind::Bang) json[std::string(row.Text)] = info.CountOf(row.Which);
    }
    return json;
}

} // namespace

std::string JsonOf(const MapInfo& info) {
    Json factories = Json::array();
    for (const FactoryInfo& factory : info.Factories) factories.push_back(FactoryJson(factory));
    const Json json{
        {"file", info.Name},
        {"columns", info.Columns},
        {"rows", info.Rows},
        {"counts", CountsJson(info)},
        {"gems", info.CountOf(Kind::Gem1Type)},
        {"players", info.CountOf(Kind::You)},
        {"titles", info.Titles},
        {"factories", factories},
        {"load_ms", info.Times.LoadTime()},
        {"worst_tick", {{"tick", info.Times.WorstStep()}, {"ms", info.Times.WorstTime()}}},
        {"first_minute", {{"end", EndText(info.End)}, {"ticks", info.Ticks}}},
    };
    // Names and titles may hold bytes of any encoding.
    constexpr int indent = 2;
    return json.dump(indent, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace tumbledeep
