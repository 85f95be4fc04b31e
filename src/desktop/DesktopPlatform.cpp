// What the game asks, answered with Qt: dialogs are its own, which take the desktop's look where it
// offers one. Files and settings are the host's.
#include "desktop/DesktopPlatform.h"

#include "base/Failure.h"
#include "desktop/MessageBox.h"
#include "formats/Profile.h"
#include "formats/ProgramPath.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "host/SettingsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <iostream>

namespace tumbledeep {

namespace {

constexpr const char* Title = "Tumbledeep";
/// How long this window stays up at most while the next process has not painted its own.
constexpr std::chrono::milliseconds LongestGap{1000};
/// In bytes. The system takes no longer word on a command line.
constexpr std::size_t LongestWord = 100'000;
constexpr const char* RunningProgram = "/proc/self/exe";

namespace fs = std::filesystem;

/// From the system itself: the toolkit would make text of a name, and lose what is none.
fs::path ProgramFile() {
    std::error_code error;
    const fs::path file = fs::read_symlink(RunningProgram, error);
    return error ? fs::path(QCoreApplication::applicationFilePath().toStdString()) : file;
}

/// What a filter shows. Small letters are added to each pattern, for dialogs that tell them apart.
QStringList Patterns(const std::string& filter) {
    QStringList patterns = QString::fromStdString(filter).section('|', 1).split(';');
    for (const QString& pattern : QStringList(patterns)) patterns << pattern.toLower();
    return patterns;
}

/// The filter as Qt writes it: "label (pattern pattern)".
QString QtFilter(const std::string& filter) {
    const QString label = QString::fromStdString(filter).section('|', 0, 0).section(" (", 0, 0);
    return label + " (" + Patterns(filter).join(' ') + ")";
}

QString TextOf(const fs::path& path) { return QString::fromStdString(path.string()); }

} // namespace

DesktopPlatform::DesktopPlatform(const Options& given)
    : options(given),
      program(ProgramFile()),
      folders(FoldersOf(program, given.Directory)),
      unsaved(given.Unsaved),
      lost(given.Elsewhere) {}

void DesktopPlatform::Quit() {
    quitting = true;
    QCoreApplication::exit(0);
}

void DesktopPlatform::AwaitSuccessor() { successor.AwaitShown(LongestGap); }

void DesktopPlatform::Carry(std::optional<int> scale, bool fullScreen) {
    options.Scale = scale;
    options.FullScreen = fullScreen;
}

int DesktopPlatform::Show(QDialog& dialog) { return Exec(dialog, Patience ? Patience() : 0); }

int DesktopPlatform::Exec(QDialog& dialog, int patience) {
    BeforeDialog();
    if (patience > 0) QTimer::singleShot(patience, &dialog, [&dialog] { dialog.reject(); });
    const int result = quitting ? 0 : dialog.exec();
    AfterDialog();
    if (quitting) End();
    return result;
}

int DesktopPlatform::MsgBox(const std::string& text, int style) {
    MessageBox box(DialogParent, Title, text, style);
    if (PlayerOnScreen) StandClearOf(box, PlayerOnScreen());
    const int answer = Show(box);
    if (!MsgBoxStyle::Asks(style)) return MsgBoxAnswer::Ok;
    return answer == MsgBoxAnswer::Yes ? answer : MsgBoxAnswer::No;
}

std::string DesktopPlatform::InputBox(const std::string& prompt) {
    QInputDialog dialog(DialogParent);
    dialog.setWindowTitle(Title);
    dialog.setLabelText(QString::fromStdString(prompt));
    if (PlayerOnScreen) StandClearOf(dialog, PlayerOnScreen());
    return Show(dialog) == QDialog::Accepted ? dialog.textValue().toStdString() : "";
}

std::string DesktopPlatform::ShowOpen(const OpenDialog& dialog) {
    const QString filter = QtFilter(dialog.Filter);
    QString folder = TextOf(HostPath(dialog.InitDir));
    QList<QUrl> places{QUrl::fromLocalFile(QDir::homePath()), QUrl::fromLocalFile(folder)};
    if (!folders.Shipped.empty()) {
        const QString shipped = TextOf(folders.Shipped);
        places << QUrl::fromLocalFile(shipped);
        // The folder of a player who has no maps would be a dead end.
        if (QDir(folder).entryList(Patterns(dialog.Filter), QDir::Files).isEmpty())
            folder = shipped;
    }
    QFileDialog open(DialogParent, QString::fromStdString(dialog.Title), folder, filter);
    open.setFileMode(QFileDialog::ExistingFile);
    // A map from elsewhere is not found again by the next process, which then asks for one.
    if (lost && fs::is_regular_file(*lost)) {
        places << QUrl::fromLocalFile(TextOf(lost->parent_path()));
        open.setDirectory(TextOf(lost->parent_path()));
        open.selectFile(TextOf(*lost));
    }
    open.setSidebarUrls(places);
    if (Show(open) != QDialog::Accepted || open.selectedFiles().isEmpty()) return "";
    std::string chosen = ProgramPath(open.selectedFiles().constFirst().toStdString());
    // The dialog offers both cases, the game knows a list by capitals alone; files are found in
    // any.
    if (chosen.ends_with(".tbl")) chosen = WithoutExtension(chosen) + ".TBL";
    return chosen;
}

void DesktopPlatform::Shell(const std::string& commandLine) {
    // The program always starts itself; what stands behind its name is the game's argument.
    const std::string name = AppPath() + "\\tumbledeep";
    std::vector<std::string> words = WordsForSuccessor();
    if (commandLine.size() > name.size() + 1) {
        words.push_back(commandLine.substr(name.size() + 1));
    }
    // Where it was at the start there is a new one after an update, and none after a move.
    if (successor.Start(program, words)) return;
    const bool isPortable = !options.Directory && folders.Shipped.empty();
    if (isPortable) words.insert(words.begin(), {"--dir", folders.Own.string()});
    if (successor.Start(RunningProgram, words)) return;
    MsgBox("The program can't be started again.", MsgBoxStyle::Stop);
}

std::vector<std::string> DesktopPlatform::WordsForSuccessor() const {
    std::vector<std::string> words = options.ForSuccessor();
    if (unsaved && unsaved->size() < LongestWord) {
        words.insert(words.end(), {"--unsaved-settings", *unsaved});
    }
    return words;
}

std::string DesktopPlatform::Notice() const {
    return unsaved ? "Tumbledeep.ini can't be written; settings last until you quit" : "";
}

std::string DesktopPlatform::AppPath() const { return ProgramPath(folders.Own); }

std::string DesktopPlatform::Command() const { return CommandText(options.Argument, folders); }

std::uint32_t DesktopPlatform::Seed() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

std::string DesktopPlatform::OpenForInput(const std::string& path) {
    const fs::path file = folders.Find(HostPath(path));
    std::string bytes = ReadFile(file);
    if (IsMapName(path)) {
        lost.reset();
        const fs::path folder = HostPath(path).parent_path();
        const bool isElsewhere = folder != folders.Own.lexically_normal();
        options.Elsewhere = isElsewhere ? std::optional(file) : std::nullopt;
    }
    return bytes;
}

std::string DesktopPlatform::GetPrivateProfileString(std::string_view section, std::string_view key,
                                                     const std::string& path) {
    return unsaved ? ProfileValue(*unsaved, section, key) : ReadProfile(section, key, path);
}

void DesktopPlatform::WritePrivateProfileString(std::string_view section, std::string_view key,
                                                std::string_view value, const std::string& path) {
    if (!unsaved && WriteProfile(section, key, value, path)) return;
    if (!unsaved) {
        unsaved = ReadSettings(path);
        std::cerr << "tumbledeep: " << folders.Own.string() << ": " << Notice() << '\n';
    }
    unsaved = ProfileWith(*unsaved, section, key, value);
}

} // namespace tumbledeep
