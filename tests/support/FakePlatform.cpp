// When no answer is left, questions get No and other dialogs are cancelled.
#include "support/FakePlatform.h"

#include "platform/Profile.h"

#include <limits>

namespace tumbledeep {

std::string FakePlatform::NextAnswer() {
    if (Answers.empty()) return "";
    std::string answer = Answers.front();
    Answers.pop_front();
    return answer;
}

void FakePlatform::Note(const std::string& what, std::string text) {
    if (text.starts_with(Directory)) text.replace(0, std::string(Directory).size(), ".");
    Log += (Log.empty() ? "" : "; ") + what + text;
}

int FakePlatform::MsgBox(const std::string& text, int style) {
    Note("box " + std::to_string(style) + " ", text);
    if (style != MsgBoxStyle::Question && style != MsgBoxStyle::Exclamation) {
        return MsgBoxAnswer::Ok;
    }
    return NextAnswer() == "yes" ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
}

std::string FakePlatform::InputBox(const std::string& prompt) {
    Note("input ", prompt);
    return NextAnswer();
}

void FakePlatform::ShowOpen(CommonDialog& dialog) {
    Note("open ", dialog.InitDir + "; " + dialog.DialogTitle + "; " + dialog.Filter);
    dialog.FileName = NextAnswer();
    dialog.FileTitle = dialog.FileName.substr(dialog.FileName.rfind('\\') + 1);
}

short FakePlatform::GetKeyState(int virtualKey) const {
    const int down = KeysDown.contains(virtualKey) ? std::numeric_limits<short>::min() : 0;
    return static_cast<short>(down + 1);
}

float FakePlatform::Rnd() {
    if (Draws.empty()) return FurtherDraws();
    const float draw = Draws.front();
    Draws.pop_front();
    return draw;
}

std::string FakePlatform::OpenForInput(const std::string& path) {
    std::string plain = path; // single "\" between the folders
    for (std::size_t at = 0; (at = plain.find("\\\\")) < plain.size();) plain.erase(at, 1);
    Note("read ", plain);
    if (!Files.contains(plain)) throw Failure{Failure::FileNotFound};
    return Files[plain];
}

std::string FakePlatform::GetPrivateProfileString(std::string_view section, std::string_view key,
                                                  const std::string& path) {
    return ProfileValue(Files[path], section, key);
}

void FakePlatform::WritePrivateProfileString(std::string_view section, std::string_view key,
                                             std::string_view value, const std::string& path) {
    Note("[" + std::string(section) + "] " + std::string(key) + "=", std::string(value));
    Files[path] = ProfileWith(Files[path], section, key, value);
}

} // namespace tumbledeep
