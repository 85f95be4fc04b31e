// Which words there are, and the values that they need.
#include "headless/TraceCall.h"

#include "base/Number.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace tumbledeep {

namespace {

std::int64_t WholeUpTo(std::string_view option, std::string_view text, std::int64_t limit) {
    const auto value = ReadInteger(text);
    if (!value || *value < 0 || *value > limit) {
        throw TraceCallFault(std::string(option) + " needs a whole number from 0 to " +
                             std::to_string(limit));
    }
    return *value;
}

void SetOption(TraceCall& call, std::string_view name, std::string_view value) {
    if (name == "--dir") {
        call.Directory = value;
    } else if (name == "--script") {
        call.ScriptFile = std::string(value);
    } else if (name == "--seed") {
        call.Options.Run.Seed = static_cast<std::uint32_t>(
            WholeUpTo(name, value, std::numeric_limits<std::uint32_t>::max()));
    } else if (name == "--steps") {
        call.Options.Steps = WholeUpTo(name, value, std::numeric_limits<std::int64_t>::max());
    } else {
        const auto size = ReadSize(value);
        if (!size) throw TraceCallFault("--parent needs a size such as 15360x11520");
        call.Options.Parent = *size;
    }
}

} // namespace

TraceCall ReadTraceCall(std::span<char* const> words) {
    static constexpr std::array<std::string_view, 5> WithValue{"--dir", "--seed", "--script",
                                                               "--steps", "--parent"};
    TraceCall call;
    bool hasArgument = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word == "--quiet") {
            call.Options.Quiet = true;
        } else if (word == "--timing") {
            call.Timed = true;
        } else if (std::find(WithValue.begin(), WithValue.end(), word) != WithValue.end()) {
            if (i + 1 == words.size()) throw TraceCallFault(std::string(word) + " needs a value");
            SetOption(call, word, words[++i]);
        } else if (word.starts_with("--")) {
            throw TraceCallFault("unknown option " + std::string(word));
        } else if (hasArgument) {
            throw TraceCallFault("more than one argument: " + std::string(word));
        } else {
            call.Options.Run.Command = word;
            hasArgument = true;
        }
    }
    return call;
}

} // namespace tumbledeep
