// Which lines that say nothing are comments, and which are objects with a slip in their name.
#include "map/check/Checks.h"

#include "base/Number.h"
#include "base/Text.h"
#include "formats/NearMiss.h"

namespace tumbledeep {

namespace {

bool IsPunctuation(char c) {
    return c > ' ' && c <= '~' &&
           std::string_view("`~!@#$%^&*()-_=+[]{}\\|;:'\",.<>/?").find(c) != std::string_view::npos;
}

bool IsComment(std::string_view text) {
    return text.empty() || IsPunctuation(text.front()) || SameButCase(WordAt(text, 1), "rem");
}

/// The first word without its tabs, and how the line goes on.
struct Slip {
    std::string_view Word;
    std::string_view Meant; ///< the keyword, or ""
    bool HasTab;
    bool IsSure; ///< the line goes on as an object or a title does
};

Slip ReadSlip(std::string_view text) {
    const std::string_view bare = Trimmed(text, "\t ");
    Slip slip{bare.substr(0, bare.find_first_of("\t ")), "", false, false};
    slip.HasTab = WordAt(text, 1) != slip.Word;
    slip.Meant = NearMiss(slip.Word, Keywords());
    const std::string_view rest = Trimmed(bare.substr(slip.Word.size()), "\t ");
    slip.IsSure = ReadNumber(rest).Length > 0 ||
                  (!slip.Meant.empty() && (rest.empty() || slip.Meant == "title"));
    return slip;
}

Finding SlipFinding(int line, const Slip& slip) {
    if (slip.Word == KindText(Kind::Bang)) {
        return Error(line, {"a map can't hold a bang, so the line is skipped"},
                     {"a factory makes them, with a recipe such as 5:bang"});
    }
    if (slip.HasTab && !slip.Meant.empty()) {
        return Error(line, {"a tab is part of the first word, so the line is skipped"},
                     {"write one blank in place of each tab, and none in front"});
    }
    const std::string text = Joined({Quoted(slip.Word), " is nothing that a map can hold"});
    if (slip.IsSure) {
        return Error(line, {text, ", so the line is skipped"},
                     {slip.Meant.empty() ? Joined({"lines begin with ", Listed(Keywords())})
                                         : Joined({"did you mean ", Quoted(slip.Meant)})});
    }
    return Warning(line, {text, ", so the line is skipped"}, {"begin comments with rem"});
}

} // namespace

std::set<std::string_view> LostNames(const CheckedMap& map) {
    std::set<std::string_view> names;
    for (std::size_t i = 0; i < map.Lines.size(); ++i) {
        const MapLine& line = map.Lines[i];
        const std::string_view text = map.Source.Lines[i].Text;
        if (line.Fault || map.IsTooMany(line)) names.insert(KindText(line.Which));
        if (line.What != MapLine::Is::Nothing || IsComment(text)) continue;
        const Slip slip = ReadSlip(text);
        if (slip.IsSure && slip.Meant != "title") names.insert(slip.Meant);
    }
    return names;
}

Findings CheckKeywords(const CheckedMap& map) {
    Findings found;
    for (std::size_t i = 0; i < map.Lines.size(); ++i) {
        const std::string_view text = map.Source.Lines[i].Text;
        if (map.Lines[i].What != MapLine::Is::Nothing || WordAt(text, 1) == "title") continue;
        if (IsComment(text) || (i > 0 && map.Ends[i - 1].ByComma)) continue;
        found.push_back(SlipFinding(map.Lines[i].Line, ReadSlip(text)));
    }
    return found;
}

} // namespace tumbledeep
