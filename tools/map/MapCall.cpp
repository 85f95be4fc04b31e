// How options, their values and the map's name are told apart.
#include "map/MapCall.h"

#include "base/Number.h"
#include "pictures/DevicePixels.h"

#include <algorithm>

namespace tumbledeep {

namespace {

bool LooksLikeOption(std::string_view word) {
    return word.starts_with("--") || (word.starts_with('-') && word.size() == 2);
}

int ScaleFrom(std::string_view text) {
    const auto number = ReadInteger(text);
    if (number && *number >= 1 && *number <= LargestScale) return static_cast<int>(*number);
    throw CallFault("--scale needs a whole number from 1 to " + std::to_string(LargestScale));
}

/// Takes an option that the command knows; `value` gives the word behind it.
void TakeOption(MapCall& call, std::string_view option, const auto& value) {
    if (option == "-o") {
        call.Output = value();
    } else if (option == "--scale") {
        call.Scale = ScaleFrom(value());
    } else {
        call.Json = true;
    }
}

} // namespace

MapCall ReadMapCall(Words words, std::initializer_list<std::string_view> known) {
    MapCall call;
    bool onlyNames = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word(words[i]);
        if (!onlyNames && word == "--") {
            onlyNames = true;
        } else if (!onlyNames && std::ranges::find(known, word) != known.end()) {
            TakeOption(call, word, [&] {
                if (i + 1 == words.size() || words[i + 1].empty()) {
                    throw CallFault(word + " needs a value");
                }
                return words[++i];
            });
        } else if (!onlyNames && LooksLikeOption(word)) {
            throw CallFault("there is no option " + word);
        } else if (!call.Map.empty()) {
            throw CallFault("more than one map: " + word);
        } else {
            call.Map = word;
        }
    }
    if (call.Map.empty()) throw CallFault("a map is missing");
    return call;
}

} // namespace tumbledeep
