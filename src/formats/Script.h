// A script that stands in for the player's hands: its text goes in, answers to dialogs and acts by
// step come out. docs/SCRIPT.md tells the lines. Playing a script is headless/Play.h's.
#pragma once

#include "formats/PlayerAct.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tumbledeep {

/// Thrown for a script that can't be read, or whose answer does not fit what the program asks. The
/// text is one line for the user: name, line and fault.
struct ScriptFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The answer to one dialog.
struct ScriptAnswer {
    enum class To { Yes, No, Text, File, Cancel };
    To What;
    std::string Text; ///< the text typed, or the path of the file
    int Line;         ///< of the script, from 1
};

/// One thing that the player does, and when.
struct ScriptEvent {
    std::int64_t Step; ///< the period of the timer before which it happens, from 1
    PlayerAct Act;
    int Line; ///< of the script, from 1
};

struct Script {
    std::string Name;                 ///< as faults name it
    std::deque<ScriptAnswer> Answers; ///< in the order of the dialogs
    std::deque<ScriptEvent> Events;   ///< by rising step

    /// A fault at a line of this script.
    ScriptFault Fault(int line, const std::string& what) const;

    // The next answer is taken off, for the dialog that is asked. Each throws ScriptFault if it
    // fits another kind of dialog.

    /// Whether a Yes/No box is answered Yes. No when there is no answer left.
    bool AnswerYes();
    /// What is typed into an input box; "" when it is cancelled or there is no answer left.
    std::string AnswerText();
    /// The path chosen in an open dialog as it is written; "" as above. `why` stands behind the
    /// words of the fault.
    std::string AnswerFile(const std::string& why = "");

  private:
    std::optional<ScriptAnswer> NextAnswer(const std::string& dialog,
                                           bool (*fits)(ScriptAnswer::To kind));
};

/// The line of a script for an answer or an event, with its line end; ReadScript reads it back.
/// Twips are rounded to whole ones. A typed text that a line can't hold becomes "x": it means
/// nothing to the game either. In an answer "?" stands for each character that a line can't hold.
std::string LineOf(const ScriptAnswer& answer);
std::string LineOf(const ScriptEvent& event);

/// Reads the text of a script, which faults call by `name`. Throws ScriptFault at the first line
/// that can't be read. `isEntry` tells whether a menu entry of a name can be chosen.
Script ReadScript(const std::string& name, std::string_view text,
                  bool (*isEntry)(std::string_view menuEntry));

/// A size of a window in twips.
struct ScriptSize {
    float Width;
    float Height;
};
/// A size such as "15360x11520"; none if the text is anything else or a number is negative.
std::optional<ScriptSize> ReadSize(std::string_view text);

} // namespace tumbledeep
