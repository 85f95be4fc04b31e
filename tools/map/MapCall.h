// The words behind a command that is about one map: the map and the options that the command knows.
// What they bring about is the command's.
#pragma once

#include "map/Commands.h"

#include <initializer_list>
#include <optional>
#include <string>

namespace tumbledeep {

struct MapCall {
    std::string Map;
    std::string Output;         ///< behind -o; "" without
    std::string After;          ///< behind --after: a script; "" without
    std::string Goal;           ///< behind --goal: a class of maps; "" without
    std::optional<int> Scale;   ///< behind --scale, from 1 to LargestScale
    std::optional<int> Seconds; ///< behind --seconds, from 1
    bool Json = false;          ///< --json
    bool Quick = false;         ///< --quick
    bool Greedy = false;        ///< --greedy
};

/// Reads the words; `known` are the options of the command, of those above. The map's
/// name may begin with "-" if it is longer than an option, and with anything behind the word "--".
/// Throws CallFault for what does not fit.
MapCall ReadMapCall(Words words, std::initializer_list<std::string_view> known);

} // namespace tumbledeep
