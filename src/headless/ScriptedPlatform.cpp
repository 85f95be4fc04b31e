// How dialogs are answered from the script and requests printed. When no answer is left, questions
// get No and other dialogs are cancelled.
#include "headless/ScriptedPlatform.h"

#include "base/Failure.h"
#include "formats/ProgramPath.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "host/SettingsFile.h"

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

int ScriptedPlatform::MsgBox(const std::string& text, int style) {
    int result = MsgBoxAnswer::Ok;
    if (MsgBoxStyle::Asks(style)) {
        result = script.AnswerYes() ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
    }
    out << "box " << style << ' ' << Quoted(text) << " = " << result << '\n';
    return result;
}

std::string ScriptedPlatform::InputBox(const std::string& prompt) {
    std::string text = script.AnswerText();
    out << "input " << Quoted(prompt) << " = " << Quoted(text) << '\n';
    return text;
}

std::string ScriptedPlatform::ShowOpen(const OpenDialog& dialog) {
    // Without this a script would be blamed for a map that is not there.
    const std::string why =
        missing.empty() ? "" : ", which asks because there is no " + Quoted(missing);
    const std::string answer = script.AnswerFile(why);
    std::string chosen = answer.empty() ? "" : PathFrom(AppPath(), answer);
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
