// A script that stands in for the player's hands: answers to dialogs, and events by step.
#pragma once

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
    To Kind;
    std::string Text;
    int Line;
};

struct ScriptEvent {
    enum class Do { Type, Press, Release, Click, Drag, GotFocus, LostFocus, Menu, Resize };
    std::int64_t Step;
    Do Kind;
    std::string Text; ///< typed text or menu entry
    int Key = 0;      ///< virtual key code
    float X = 0;      ///< twips, of a drag or a size
    float Y = 0;
    int Line = 0;
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

/// A whole number within the range of the type; none if the text is anything else.
std::optional<std::int64_t> ReadWhole(std::string_view text);

} // namespace tumbledeep
