// One entry to a line, one blank between words.
#include "formats/Script.h"

#include "base/Number.h"

#include <utility>

namespace tumbledeep {

namespace {

/// The keys by name, in the order of Heading.
constexpr std::array<std::string_view, 4> KeyNames{"Up", "Down", "Left", "Right"};

/// Takes the text up to the next blank off the front, and the blank with it.
std::string_view TakeWord(std::string_view& rest) {
    const std::size_t blank = rest.find(' ');
    const std::string_view word = rest.substr(0, blank);
    rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
    return word;
}

/// Reads the lines of one script.
class Reader {
  public:
    Reader(Script& target, bool (*menuEntries)(std::string_view))
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
    [[noreturn]] void Fail(const std::string& what) const { throw script.Fault(line, what); }

    void Answer(std::string_view rest) {
        using To = ScriptAnswer::To;
        const std::string_view word = TakeWord(rest);
        if (word == "text") return AddAnswer(To::Text, rest);
        if (word == "file") {
            if (rest.empty()) Fail("\"answer file\" needs a path");
            return AddAnswer(To::File, rest);
        }
        const To plain = word == "yes"      ? To::Yes
                         : word == "no"     ? To::No
                         : word == "cancel" ? To::Cancel
                                            : To::Text;
        if (plain == To::Text) Fail("an answer is yes, no, text, file or cancel");
        if (!rest.empty()) Fail("words are left over");
        AddAnswer(plain, "");
    }

    void AddAnswer(ScriptAnswer::To kind, std::string_view text) {
        script.Answers.push_back({kind, std::string(text), line});
    }

    void Event(std::string_view rest) {
        const auto step = ReadInteger(TakeWord(rest));
        if (!step || *step < 1) Fail("a step is a whole number from 1");
        if (!script.Events.empty() && *step < script.Events.back().Step) {
            Fail("steps stand in rising order");
        }
        ScriptEvent event{*step, {}, line};
        Action(event.Act, TakeWord(rest), rest);
        script.Events.push_back(std::move(event));
    }

    void Action(PlayerAct& act, std::string_view word, std::string_view rest) {
        using Do = PlayerAct::Do;
        if (word == "type") {
            if (rest.empty()) Fail("\"type\" needs a text");
            act.What = Do::Type;
            act.Text = rest;
            return;
        }
        if (word == "press" || word == "release") {
            act.What = word == "press" ? Do::Press : Do::Release;
            act.Key = KeyNamed(rest);
        } else if (word == "drag") {
            act.What = Do::Drag;
            const auto x = ReadInteger(TakeWord(rest));
            const auto y = ReadInteger(rest);
            if (!x || !y) Fail("\"drag\" needs two whole numbers of twips");
            act.X = static_cast<float>(*x);
            act.Y = static_cast<float>(*y);
        } else if (word == "menu") {
            if (!isEntry(rest)) Fail("there is no menu entry \"" + std::string(rest) + "\"");
            act.What = Do::Menu;
            act.Text = rest;
        } else if (word == "resize") {
            const auto size = ReadSize(rest);
            if (!size) Fail("\"resize\" needs a size such as 15360x11520");
            act.What = Do::Resize;
            act.X = size->Width;
            act.Y = size->Height;
        } else if (word == "click" || word == "gotfocus" || word == "lostfocus") {
            if (!rest.empty()) Fail("words are left over");
            act.What = word == "click"      ? Do::Click
                       : word == "gotfocus" ? Do::GotFocus
                                            : Do::LostFocus;
        } else {
            Fail("an event is type, press, release, click, drag, gotfocus, lostfocus, menu or "
                 "resize");
        }
    }

    Heading KeyNamed(std::string_view name) const {
        for (const Heading key : Headings) {
            if (KeyNames[Index(key)] == name) return key;
        }
        Fail("a key is Up, Down, Left or Right");
    }

    Script& script;
    bool (*isEntry)(std::string_view);
    int line = 0;
};

} // namespace

ScriptFault Script::Fault(int line, const std::string& what) const {
    return ScriptFault(Name + ":" + std::to_string(line) + ": " + what);
}

Script ReadScript(const std::string& name, std::string_view text,
                  bool (*isEntry)(std::string_view menuEntry)) {
    Script script;
    script.Name = name;
    Reader reader(script, isEntry);
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
