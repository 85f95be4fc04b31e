// Answers taken from a row, files found by the very path that is asked for, and a log of all that
// was asked.
#include "host/MemoryPlatform.h"

#include "base/Failure.h"
#include "formats/Profile.h"

namespace tumbledeep {

std::string MemoryPlatform::NextAnswer() {
    if (Answers.empty()) return "";
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
}

void MemoryPlatform::Note(const std::string& what, std::string text) {
    const std::string_view directory = Directory;
    if (text.starts_with(directory)) text.replace(0, directory.size(), ".");
    Log += (Log.empty() ? "" : "; ") + what + text;
}

int MemoryPlatform::MsgBox(const std::string& text, int style) {
    Note("box " + std::to_string(style) + " ", text);
    if (!MsgBoxStyle::Asks(style)) {
        return MsgBoxAnswer::Ok;
    }
    return NextAnswer() == "yes" ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
}

std::string MemoryPlatform::InputBox(const std::string& prompt) {
    Note("input ", prompt);
    return NextAnswer();
}

std::string MemoryPlatform::ShowOpen(const OpenDialog& dialog) {
    Note("open ", dialog.InitDir + "; " + dialog.Title + "; " + dialog.Filter);
    return NextAnswer();
}

std::string MemoryPlatform::OpenForInput(const std::string& path) {
    // A folder's name may end in "\", and the game joins another one to it.
    std::string plain = path;
    for (std::size_t at = 0; (at = plain.find("\\\\")) < plain.size();) plain.erase(at, 1);
    Note("read ", plain);
    const auto file = Files.find(plain);
    if (file == Files.end()) throw Failure{Failure::FileNotFound};
    return file->second;
}

std::string MemoryPlatform::GetPrivateProfileString(std::string_view section, std::string_view key,
                                                    const std::string& path) {
    const auto file = Files.find(path);
    return file == Files.end() ? "" : ProfileValue(file->second, section, key);
}

void MemoryPlatform::WritePrivateProfileString(std::string_view section, std::string_view key,
                                               std::string_view value, const std::string& path) {
    std::string where = "[";
    where.append(section).append("] ").append(key).append("=");
    Note(where, std::string(value));
    Files[path] = ProfileWith(Files[path], section, key, value);
}

} // namespace tumbledeep
