// What is wrong with the words behind a first word that the game knows.
#include "map/check/Checks.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "base/Text.h"
#include "world/Heading.h"

#include <algorithm>

namespace tumbledeep {

namespace {

bool IsHeading(std::string_view word) { return HeadingNamed(word).has_value(); }

bool IsNumber(std::string_view word) { return IsWhole(ReadNumber(word), word); }

/// The words of a line, without the empty ones.
std::vector<std::string_view> WordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view word = WordAt(text, at + 1);
        if (!word.empty()) words.push_back(word);
        at += word.size() + 1;
    }
    return words;
}

bool IsNumberWithLetters(std::string word) {
    std::ranges::replace_if(
        word, [](char c) { return c == 'O' || c == 'o'; }, '0');
    std::ranges::replace_if(
        word, [](char c) { return c == 'l' || c == 'I'; }, '1');
    return IsNumber(word);
}

std::string EmptyWordHint(std::string_view text) {
    if (WordsOf(text).size() < 3) return "write the name, Top and Left, one blank between two";
    if (text.find("  ") != std::string_view::npos) return "leave one of the blanks in a row";
    return "take the blank at the end of the line away";
}

std::string NumberHint(const MapLine& line, const MapFault& fault, std::string_view text) {
    const std::string& word = fault.Word;
    if (fault.Number == Failure::Overflow) return "the last column and row stand at 107640";
    if (word.empty()) return EmptyWordHint(text);
    if (word.ends_with('\t')) return "take the tab at the word's end away";
    if (word.find('\t') != std::string::npos) return "write a blank in place of the tab";
    if (word.find(',') != std::string::npos) return "write a point in place of the comma";
    if (IsNumberWithLetters(word)) return "write digits, 0 and 1, in place of the letters";
    const auto words = WordsOf(text);
    if (words.size() > 3 && word == words.back()) {
        return Joined({"take ", Quoted(word), " away: nothing stands behind the two numbers of a ",
                       KindText(line.Which)});
    }
    if (IsHeading(word)) return "the heading stands behind the two numbers";
    if (text.find_first_of("0123456789", KindText(line.Which).size()) == std::string_view::npos) {
        return "begin comments with rem, or write Top and Left behind the name";
    }
    return "write a number of twips, such as 360";
}

Finding NumberFinding(const MapLine& line, std::string_view text, bool isFirst) {
    const MapFault& fault = *line.Fault;
    const bool tooLarge = fault.Number == Failure::Overflow;
    std::string what = fault.Word.empty() ? "a number is missing" : Quoted(fault.Word);
    if (!fault.Word.empty()) what += tooLarge ? " is too large a number" : " is no number";
    const std::string number = std::to_string(fault.Number);
    return Error(line.Line,
                 {what, isFirst ? ": loading stops here with failure " : ": failure ", number},
                 {NumberHint(line, fault, text)});
}

Finding FullFinding(const MapLine& line, bool isFirst) {
    return Error(line.Line,
                 {"this is one ", KindText(line.Which), " more than the 32766 that a map can have",
                  isFirst ? ": loading stops here with failure 6" : ": failure 6"},
                 {"take objects of this kind away"});
}

/// Of a line whose last word is no heading.
void CheckHeading(Findings& found, const MapLine& line, std::string_view text, int tagLine) {
    const auto words = WordsOf(text);
    std::string what = "the heading is missing";
    std::string hint = "end the line with U, D, L or R";
    if (words.size() > 3 && text.ends_with(' ')) {
        what = "the blank at the end of the line hides the heading";
        hint = "take it away";
    } else if (words.size() > 3) {
        what = Joined({Quoted(line.Text), " is no heading"});
        const std::string capital(1, AsciiUpper(line.Text.front()));
        if (IsHeading(words[3])) {
            hint = "nothing stands behind the heading " + std::string(words[3]);
        } else if (IsHeading(capital)) {
            hint = "write " + capital;
        }
    }
    found.push_back(Warning(tagLine, {what, ": the mine stands still"}, {hint}));
}

/// Words between those that the game looks at, and a single number for both places.
void CheckWords(Findings& found, const MapLine& line, std::string_view text) {
    const auto words = WordsOf(text);
    const std::size_t wanted = HasTag(line.Which) ? 4 : 3;
    const std::string_view name = KindText(line.Which);
    if (words.size() > wanted) {
        found.push_back(
            Warning(line.Line,
                    {"nothing looks at ", Quoted(words[wanted - 1]), ": the last word, ",
                     Quoted(words.back()), wanted == 3 ? ", is Left" : ", is taken in its place"},
                    {"take the words away that are too many"}));
    } else if (words.size() < 3) {
        found.push_back(
            Warning(line.Line, {"there is one number, which is taken for both Top and Left"},
                    {"write \"", name, " ", words.back(), " ", words.back(), "\" if that is it"}));
    }
}

} // namespace

Findings CheckLines(const CheckedMap& map) {
    Findings found;
    bool isFirst = true;
    for (std::size_t i = 0; i < map.Lines.size(); ++i) {
        const MapLine& line = map.Lines[i];
        const std::string_view text = map.Source.Lines[i].Text;
        if (line.What == MapLine::Is::Nothing && WordAt(text, 1) == "title") {
            found.push_back(Warning(line.Line, {"the title has no text, so no box is shown"},
                                    {"write the text behind \"title \""}));
        }
        if (line.What != MapLine::Is::Object) continue;
        const bool isFull = map.IsTooMany(line);
        if (isFull || line.Fault) {
            found.push_back(isFull ? FullFinding(line, isFirst)
                                   : NumberFinding(line, text, isFirst));
            isFirst = false;
            continue;
        }
        const bool isHeaded = HasTag(line.Which) && line.Which != Kind::Factory;
        if (isHeaded && !IsHeading(line.Text)) {
            CheckHeading(found, line, text, map.Source.TagLine(i));
        } else if (!map.Ends[i].ByComma) {
            CheckWords(found, line, text);
        }
    }
    return found;
}

} // namespace tumbledeep
