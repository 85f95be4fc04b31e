// A script that stands in for the player's hands: answers to dialogs, and events by step.
#pragma once

#include "formats/PlayerAct.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tumbledeep {

/// A script that can't be read or does not fit what the program asks; the text is one whole line.
struct ScriptFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct ScriptAnswer {
    enum class To { Yes, No, Text, File, Cancel };
    To What;
    std::string Text;
    int Line;
};

struct ScriptEvent {
    std::int64_t Step;
    PlayerAct Act;
    int Line;
};

struct Script {
    std::string Name; ///< as faults name it
    std::deque<ScriptAnswer> Answers;
    std::deque<ScriptEvent> Events;

    /// A fault at a line of this script.
    ScriptFault Fault(int line, const std::string& what) const;
};

/// Reads a whole script. Throws ScriptFault at the first line that does not fit; `isEntry` tells
/// the names of menu entries that can be chosen.
Script ReadScript(const std::string& name, std::string_view text,
                  bool (*isEntry)(std::string_view menuEntry));

/// A size such as 15360x11520, in twips; none if the text is anything else.
struct ScriptSize {
    float Width;
    float Height;
};
std::optional<ScriptSize> ReadSize(std::string_view text);

} // namespace tumbledeep
