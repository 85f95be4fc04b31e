// How the lines of a script are read: one entry to a line, one blank between words, and tables of
// the words that there are.
#include "formats/Script.h"

#include "base/Number.h"
#include "formats/ScriptWords.h"

#include <algorithm>
#include <utility>

namespace tumbledeep {

namespace {

/// Takes the text up to the next blank off the front, and the blank with it.
std::string_view TakeWord(std::string_view& rest) {
    const std::size_t blank = rest.find(' ');
    const std::string_view word = rest.substr(0, blank);
    rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
    return word;
}

using To = ScriptAnswer::To;

/// Reads the lines of one script.
class ScriptReader {
  public:
    ScriptReader(Script& target, bool (*menuEntries)(std::string_view))
        : script(target), isEntry(menuEntries) {}

    void Line(std::string_view text) {
        ++line;
        if (text.ends_with('\r')) text.remove_suffix(1);
        if (text.find_first_not_of(' ') == std::string_view::npos || text.starts_with('#')) return;
        const std::string_view word = TakeWord(text);
        if (word == "answer") return Answer(text);
        if (word == "at") return Event(text);
        Fail("an entry begins with \"answer\" or \"at\"");
    }

  private:
    /// By the number of what is done: how the words behind the verb are read.
    static const std::array<void (ScriptReader::*)(PlayerAct& act, std::string_view rest) const,
                            VerbWords.size()>
        Readers;

    [[noreturn]] void Fail(const std::string& what) const { throw script.Fault(line, what); }

    template <class Table>
    auto& Named(const Table& table, std::string_view word, const char* fault) const {
        const auto found = std::find_if(table.begin(), table.end(),
                                        [word](const auto& row) { return row.Word == word; });
        if (found == table.end()) Fail(fault);
        return *found;
    }

    void Answer(std::string_view rest) {
        const AnswerWord& answer =
            Named(AnswerWords, TakeWord(rest), "an answer is yes, no, text, file or cancel");
        if (!answer.TakesText) NoMore(rest);
        if (answer.What == To::File && rest.empty()) Fail("\"answer file\" needs a path");
        script.Answers.push_back({answer.What, std::string(rest), line});
    }

    void Event(std::string_view rest) {
        const auto step = ReadInteger(TakeWord(rest));
        if (!step || *step < 1) Fail("a step is a whole number from 1");
        if (!script.Events.empty() && *step < script.Events.back().Step) {
            Fail("steps stand in rising order");
        }
        const VerbWord& verb = Named(VerbWords, TakeWord(rest),
                                     "an event is type, press, release, click, drag, gotfocus, "
                                     "lostfocus, menu or resize");
        ScriptEvent event{*step, {verb.What}, line};
        (this->*Readers.at(static_cast<std::size_t>(verb.What)))(event.Act, rest);
        script.Events.push_back(std::move(event));
    }

    void NoMore(std::string_view rest) const {
        if (!rest.empty()) Fail("words are left over");
    }

    void Nothing(PlayerAct& /*act*/, std::string_view rest) const { NoMore(rest); }

    void Typed(PlayerAct& act, std::string_view rest) const {
        if (rest.empty()) Fail("\"type\" needs a text");
        act.Text = rest;
    }

    void Key(PlayerAct& act, std::string_view rest) const {
        const auto* const name = std::find(KeyNames.begin(), KeyNames.end(), rest);
        if (name == KeyNames.end()) Fail("a key is Up, Down, Left or Right");
        act.Key = Headings[static_cast<std::size_t>(name - KeyNames.begin())];
    }

    void Way(PlayerAct& act, std::string_view rest) const {
        const auto x = ReadInteger(TakeWord(rest));
        const auto y = ReadInteger(rest);
        if (!x || !y) Fail("\"drag\" needs two whole numbers of twips");
        act.X = static_cast<float>(*x);
        act.Y = static_cast<float>(*y);
    }

    void Entry(PlayerAct& act, std::string_view rest) const {
        if (!isEntry(rest)) Fail("there is no menu entry \"" + std::string(rest) + "\"");
        act.Text = rest;
    }

    void Size(PlayerAct& act, std::string_view rest) const {
        const auto size = ReadSize(rest);
        if (!size) Fail("\"resize\" needs a size such as 15360x11520");
        act.X = size->Width;
        act.Y = size->Height;
    }

    Script& script;
    bool (*isEntry)(std::string_view);
    int line = 0;
};

const std::array<void (ScriptReader::*)(PlayerAct& act, std::string_view rest) const,
                 VerbWords.size()>
    ScriptReader::Readers{&ScriptReader::Typed,   &ScriptReader::Key,   &ScriptReader::Key,
                          &ScriptReader::Nothing, &ScriptReader::Way,   &ScriptReader::Nothing,
                          &ScriptReader::Nothing, &ScriptReader::Entry, &ScriptReader::Size};

} // namespace

ScriptFault Script::Fault(int line, const std::string& what) const {
    return ScriptFault(Name + ":" + std::to_string(line) + ": " + what);
}

std::optional<ScriptAnswer> Script::NextAnswer(const std::string& dialog, bool (*fits)(To kind)) {
    if (Answers.empty()) return std::nullopt;
    ScriptAnswer answer = Answers.front();
    Answers.pop_front();
    if (!fits(answer.What)) throw Fault(answer.Line, "the answer does not fit " + dialog);
    return answer;
}

bool Script::AnswerYes() {
    const auto answer =
        NextAnswer("a Yes/No box", [](To kind) { return kind == To::Yes || kind == To::No; });
    return answer && answer->What == To::Yes;
}

std::string Script::AnswerText() {
    const auto answer =
        NextAnswer("an input box", [](To kind) { return kind == To::Text || kind == To::Cancel; });
    return answer ? answer->Text : "";
}

std::string Script::AnswerFile(const std::string& why) {
    const auto answer = NextAnswer("an open dialog" + why,
                                   [](To kind) { return kind == To::File || kind == To::Cancel; });
    return answer ? answer->Text : "";
}

Script ReadScript(const std::string& name, std::string_view text,
                  bool (*isEntry)(std::string_view menuEntry)) {
    Script script;
    script.Name = name;
    ScriptReader reader(script, isEntry);
    while (!text.empty()) {
        const std::size_t feed = text.find('\n');
        reader.Line(text.substr(0, feed));
        text.remove_prefix(feed == std::string_view::npos ? text.size() : feed + 1);
    }
    return script;
}

std::optional<ScriptSize> ReadSize(std::string_view text) {
    const std::size_t by = text.find('x');
    if (by == std::string_view::npos) return std::nullopt;
    const auto width = ReadInteger(text.substr(0, by));
    const auto height = ReadInteger(text.substr(by + 1));
    if (!width || !height || *width < 0 || *height < 0) return std::nullopt;
    return ScriptSize{static_cast<float>(*width), static_cast<float>(*height)};
}

} // namespace tumbledeep
