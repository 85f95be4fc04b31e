// How the lines of a script are written, in the words by which they are read.
#include "formats/Script.h"

#include "formats/ScriptWords.h"

#include <algorithm>
#include <cmath>

namespace tumbledeep {

namespace {

using Do = PlayerAct::Do;

/// Whether a line can't hold the character: line ends, and others that nobody types.
bool IsControl(char c) { return static_cast<unsigned char>(c) < ' '; }

/// Twips as whole ones, held to what a number of a script can be.
std::string Whole(float twips) {
    constexpr float farthest = 0x1p62F;
    return std::to_string(std::llround(std::clamp(twips, -farthest, farthest)));
}

/// The words behind the verb.
std::string WordsOf(const PlayerAct& act) {
    switch (act.What) {
    case Do::Type: {
        const bool fits = !act.Text.empty() && std::ranges::none_of(act.Text, IsControl);
        return fits ? act.Text : "x";
    }
    case Do::Press:
    case Do::Release: return std::string(KeyNames[Index(act.Key)]);
    case Do::Drag: return Whole(act.X) + ' ' + Whole(act.Y);
    case Do::Menu: return act.Text;
    case Do::Resize: return Whole(act.X) + 'x' + Whole(act.Y);
    default: return "";
    }
}

} // namespace

std::string LineOf(const ScriptAnswer& answer) {
    const auto& row = *std::ranges::find(AnswerWords, answer.What, &AnswerWord::What);
    std::string line = "answer ";
    line += row.Word;
    if (row.TakesText) {
        std::string text = answer.Text;
        std::ranges::replace_if(text, IsControl, '?');
        line.append(" ").append(text);
    }
    return line += '\n';
}

std::string LineOf(const ScriptEvent& event) {
    const auto& row = *std::ranges::find(VerbWords, event.Act.What, &VerbWord::What);
    std::string line = "at " + std::to_string(event.Step) + ' ';
    line += row.Word;
    const std::string words = WordsOf(event.Act);
    if (!words.empty()) line.append(" ").append(words);
    return line += '\n';
}

} // namespace tumbledeep
