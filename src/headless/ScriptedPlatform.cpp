// How dialogs are answered from the script and requests printed. When no answer is left, questions
// get No and other dialogs are cancelled.
#include "headless/ScriptedPlatform.h"

#include "base/Failure.h"
#include "formats/ProgramPath.h"
#include "host/HostFiles.h"

#include <algorithm>

namespace tumbledeep {

ScriptedPlatform::ScriptedPlatform(const ScriptedRun& settings, Script& answers,
                                   std::ostream& lines)
    : run(settings), script(answers), out(lines) {}

std::string ScriptedPlatform::Quoted(std::string_view text) const {
    static constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string quoted = "\"";
    if (!run.Directory.empty() && text.starts_with(run.Directory) &&
        (text.size() == run.Directory.size() || text[run.Directory.size()] == '\\')) {
        quoted += '.';
        text.remove_prefix(run.Directory.size());
    }
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 32) {
            quoted += "\\x";
            quoted += Digits[code / 16U];
            quoted += Digits[code % 16U];
            continue;
        }
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

std::optional<ScriptAnswer> ScriptedPlatform::NextAnswer(const std::string& dialog,
                                                         bool (*fits)(ScriptAnswer::To kind)) {
    if (script.Answers.empty()) return std::nullopt;
    ScriptAnswer answer = script.Answers.front();
    script.Answers.pop_front();
    if (!fits(answer.What)) {
        throw script.Fault(answer.Line, "the answer does not fit " + dialog);
    }
    return answer;
}

int ScriptedPlatform::MsgBox(const std::string& text, int style) {
    using To = ScriptAnswer::To;
    int result = MsgBoxAnswer::Ok;
    if (style == MsgBoxStyle::Question || style == MsgBoxStyle::Exclamation) {
        const auto answer =
            NextAnswer("a Yes/No box", [](To kind) { return kind == To::Yes || kind == To::No; });
        result = answer && answer->What == To::Yes ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
    }
    out << "box " << style << ' ' << Quoted(text) << " = " << result << '\n';
    return result;
}

std::string ScriptedPlatform::InputBox(const std::string& prompt) {
    using To = ScriptAnswer::To;
    const auto answer =
        NextAnswer("an input box", [](To kind) { return kind == To::Text || kind == To::Cancel; });
    std::string text = answer ? answer->Text : "";
    out << "input " << Quoted(prompt) << " = " << Quoted(text) << '\n';
    return text;
}

/// A path without a drive letter starts at the program's directory, a host's at the host's root.
std::string ScriptedPlatform::ChosenPath(std::string path) const {
    std::replace(path.begin(), path.end(), '/', '\\');
    if (HasDrive(path)) return path;
    return path.starts_with('\\') ? std::string(HostDrive) + path : AppPath() + "\\" + path;
}

std::string ScriptedPlatform::ShowOpen(const OpenDialog& dialog) {
    using To = ScriptAnswer::To;
    // Without this a script would be blamed for a map that is not there.
    const std::string why =
        missing.empty() ? "" : ", which asks because there is no " + Quoted(missing);
    const auto answer = NextAnswer("an open dialog" + why,
                                   [](To kind) { return kind == To::File || kind == To::Cancel; });
    std::string chosen;
    if (answer && answer->What == To::File) chosen = ChosenPath(answer->Text);
    out << "open " << Quoted(dialog.Title) << ' ' << Quoted(dialog.InitDir) << ' '
        << Quoted(dialog.Filter) << " = " << Quoted(chosen) << '\n';
    return chosen;
}

void ScriptedPlatform::Shell(const std::string& commandLine) {
    out << "start " << Quoted(commandLine) << '\n';
}

void ScriptedPlatform::Ending() { out << "end\n"; }

std::string ScriptedPlatform::OpenForInput(const std::string& path) {
    missing.clear();
    try {
        return ReadFile(FindFile(HostPath(path)));
    } catch (const Failure& failure) {
        if (failure.Number == Failure::FileNotFound) missing = getfilename(path);
        throw;
    }
}

std::string ScriptedPlatform::GetPrivateProfileString(std::string_view section,
                                                      std::string_view key,
                                                      const std::string& path) {
    return ReadProfile(section, key, path);
}

void ScriptedPlatform::WritePrivateProfileString(std::string_view section, std::string_view key,
                                                 std::string_view value, const std::string& path) {
    out << "ini " << Quoted(section) << ' ' << Quoted(key) << ' ' << Quoted(value) << '\n';
    WriteProfile(section, key, value, path);
}

} // namespace tumbledeep
