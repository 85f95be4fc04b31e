// Puts the desktop program together: options, toolkit, platform, game and window. What needs no
// screen comes first, so that --help works without one.
#include "desktop/RunGame.h"

#include "desktop/DesktopPlatform.h"
#include "desktop/FirstStart.h"
#include "desktop/GameWindow.h"
#include "desktop/Options.h"
#include "desktop/ScriptFiles.h"
#include "desktop/Signals.h"
#include "desktop/SpriteImages.h"
#include "pictures/Catalogue.h"
#include "windows/hands/Recorder.h"
#include "windows/hands/Replay.h"

#include <QApplication>
#include <QPixmap>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <span>
#include <stdexcept>

namespace tumbledeep {

namespace {

constexpr int WrongCall = 2;
constexpr int NoScreen = 1;

constexpr const char* NoScreenText =
    "tumbledeep: there is no screen here; start it from a desktop, "
    "or set DISPLAY to one\n";

/// While the toolkit looks for the screen: in place of a page of its errors, one line of ours.
void OneLineForNoScreen(QtMsgType type, const QMessageLogContext& /*context*/,
                        const QString& /*text*/) {
    if (type != QtFatalMsg) return;
    std::cerr << NoScreenText;
    std::_Exit(NoScreen);
}

bool HasScreen() {
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr ||
           std::getenv("QT_QPA_PLATFORM") != nullptr;
}

std::unique_ptr<GameWindow> OpenWindow(frmMain& game, Hands& hands, DesktopPlatform& platform,
                                       const Options& options) {
    auto window = std::make_unique<GameWindow>(game, hands, platform, options);
    window->Appear(options);
    return window;
}

/// The same, and all that the player does is written down.
int PlayRecorded(DesktopPlatform& platform, const Options& options) {
    RecordingFile file(*options.Record);
    Recorder recorder(platform, [&file](const std::string& line) { file.Write(line); });
    const auto game = std::make_unique<frmMain>(recorder);
    const auto window = OpenWindow(*game, recorder, platform, options);
    const int status = QApplication::exec();
    recorder.Finish(*game);
    return status;
}

/// A script plays, and the player watches.
int PlayReplay(DesktopPlatform& platform, const Options& options) {
    ReplayFile file = ReadReplay(*options.Replay, options.Argument, platform.Folders());
    Replay replay(platform, std::move(file.Lines), std::move(file.Head), file.Map);
    platform.Patience = [&replay, &options] {
        constexpr int look = 1500;
        return replay.IsOver() ? 0 : look / options.Speed.value_or(1);
    };
    const auto game = std::make_unique<frmMain>(replay);
    const auto window = OpenWindow(*game, replay, platform, options);
    const int status = QApplication::exec();
    std::cout << replay.LastLine(*game) << std::endl;
    return status;
}

int Run(int argc, char** argv) {
    const Options options =
        ReadOptions(std::span<char* const>(argv + 1, static_cast<std::size_t>(argc - 1)));
    if (options.Help) {
        std::cout << UsageText();
        return 0;
    }
    if (options.Version) {
        std::cout << "tumbledeep " TUMBLEDEEP_VERSION "\n";
        return 0;
    }
    if (!HasScreen()) {
        std::cerr << NoScreenText;
        return NoScreen;
    }

    int toolkitWords = 1;
    // The menu is part of the parent window, whose size the view reckons with.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    qInstallMessageHandler(OneLineForNoScreen);
    const QApplication application(toolkitWords, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName("tumbledeep");
    QApplication::setDesktopFileName("tumbledeep");
    QApplication::setWindowIcon(QPixmap::fromImage(ImageOf(AppIcon(), 4, AppIconCovers)));

    DesktopPlatform platform(options);
    QuitOnSignals([&platform] { platform.Quit(); });
    if (options.Replay) return PlayReplay(platform, options);
    // Where that fails the settings can't be written either, which the player is told.
    std::error_code error;
    std::filesystem::create_directories(platform.Folders().Own, error);
    if (options.Argument.empty() && !options.Unsaved) {
        PrepareFirstStart(platform, platform.Folders());
    }
    if (options.Record) return PlayRecorded(platform, options);
    Hands player;
    const auto game = std::make_unique<frmMain>(platform);
    const auto window = OpenWindow(*game, player, platform, options);
    return QApplication::exec();
}

} // namespace

int RunGame(int argc, char** argv) {
    EndOnSignals();
    try {
        return Run(argc, argv);
    } catch (const std::runtime_error& fault) {
        std::cerr << "tumbledeep: " << fault.what() << '\n';
        return WrongCall;
    }
}

} // namespace tumbledeep
