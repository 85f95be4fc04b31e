// How options, their values and the map's name are told apart.
#include "map/MapCall.h"

#include "base/Number.h"
#include "pictures/DevicePixels.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

bool LooksLikeOption(std::string_view word) {
    return word.starts_with("--") || (word.starts_with('-') && word.size() == 2);
}

/// The whole number behind an option, from 1 to `most`.
int NumberFrom(std::string_view option, std::string_view text, int most) {
    const auto number = ReadInteger(text);
    if (number && *number >= 1 && *number <= most) return static_cast<int>(*number);
    throw CallFault(std::string(option) + " needs a whole number from 1 to " +
                    std::to_string(most));
}

struct TextOption {
    std::string_view Name;
    std::string MapCall::*Field;
};
constexpr std::array<TextOption, 3> TextOptions{
    {{"-o", &MapCall::Output}, {"--after", &MapCall::After}, {"--goal", &MapCall::Goal}}};

struct NumberOption {
    std::string_view Name;
    std::optional<int> MapCall::*Field;
    int Most;
};
constexpr int SecondsOfADay = 86'400;
constexpr std::array<NumberOption, 2> NumberOptions{
    {{"--scale", &MapCall::Scale, LargestScale}, {"--seconds", &MapCall::Seconds, SecondsOfADay}}};

struct Flag {
    std::string_view Name;
    bool MapCall::*Field;
};
constexpr std::array<Flag, 3> Flags{
    {{"--json", &MapCall::Json}, {"--quick", &MapCall::Quick}, {"--greedy", &MapCall::Greedy}}};

/// Takes an option that the command knows; `value` gives the word behind it.
void TakeOption(MapCall& call, std::string_view name, const auto& value) {
    for (const TextOption& option : TextOptions) {
        if (option.Name == name) call.*option.Field = value();
    }
    for (const NumberOption& option : NumberOptions) {
        if (option.Name == name) call.*option.Field = NumberFrom(name, value(), option.Most);
    }
    for (const Flag& flag : Flags) {
        if (flag.Name == name) call.*flag.Field = true;
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
