// What can be said of a map's play in figures, all of it found out by playing: bots go in, and the
// scripts that lie beside the map. A map's name goes in, the measures come out; they are written as
// a table by MeasureTable.cpp and as JSON by MeasureJson.cpp.
#pragma once

#include "map/bots/Walkers.h"
#include "map/info/MapInfo.h"
#include "map/measure/Scripts.h"
#include "map/measure/SolutionWatch.h"

#include <optional>
#include <string>
#include <vector>

namespace tumbledeep {

class Progress;

/// What a script does on its map. Shares and parts are from 0 to 1.
struct ScriptMeasure {
    std::string File;
    double Wins = 0;     ///< part of the seeds
    double LateWins = 0; ///< part of the seeds when each act is late at random: the slack
    SolutionStudy Study; ///< of the run with the seed 1
};

/// What the search bot came to.
struct SearchMeasure {
    bool IsWon = false;
    std::int64_t Boards = 0; ///< that it played on by a beat until it won or gave up
};

struct MapMeasure {
    MapInfo Info;
    std::vector<Kind> Kinds; ///< that the map holds beside the player, walls, dirt and gems
    RunEnd Idle;             ///< untouched
    int SafeFirstSteps = 0;  ///< of four, behind which one may stand and look round
    int DeadGems = 0;        ///< that no play can get
    int Seeds = 0;           ///< that the scripts were played with
    std::vector<ScriptMeasure> Solutions; ///< the best one first
    std::vector<ScriptMeasure> Baits;
    /// In milliseconds, in the first minute and the best solution; none from a quick look.
    std::optional<double> WorstTick;
    std::optional<double> RandomWins; ///< part of the runs of the random bot; none if not asked for
    std::optional<double> GreedyWins; ///< the same of the greedy bot
    std::optional<SearchMeasure> Search;

    const ScriptMeasure* Best() const { return Solutions.empty() ? nullptr : &Solutions.front(); }
    /// From 0 to 100: a quarter each for what the greedy bot fails at, for the hand that must be in
    /// time, for the search's labour and for the length of the solution. None without the bots.
    std::optional<double> Difficulty() const;
};

struct MeasureOptions {
    bool Quick = false; ///< one seed, no late keys, no bots but the idle one, no times
    int SearchSeconds = 20;
};

/// Plays a map in every way. Throws std::runtime_error with a text that names file and line.
MapMeasure MeasureMap(const std::string& name, const MeasureOptions& options, Progress& bar);

/// What a class of maps, T, M or H, is held to and this map misses, a line each.
std::vector<std::string> Misses(const MapMeasure& measure, char mapClass);

/// The measure as one line of JSON with a line end. Its fields are told in MeasureJson.cpp.
std::string JsonOf(const MapMeasure& measure, const std::vector<std::string>& misses);
/// The measure as a table for people.
std::string TableOf(const MapMeasure& measure);

} // namespace tumbledeep
