// How the command line is read, and its text for the next process and for the player. Neither
// toolkit nor screen is needed here, so that --help works without both.
#include "desktop/Options.h"

#include "base/Number.h"
#include "formats/ProgramPath.h"
#include "host/HostPaths.h"
#include "pictures/DevicePixels.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

/// A larger number behind a recording's name is part of that name.
constexpr std::int64_t MostRecordings = 1'000'000;

int WholeFrom(std::string_view option, std::string_view text, int least, int most) {
    const auto value = ReadInteger(text);
    if (!value || *value < least || *value > most) {
        throw std::runtime_error(std::string(option) + " needs a whole number from " +
                                 std::to_string(least) + " to " + std::to_string(most));
    }
    return static_cast<int>(*value);
}

/// The game knows maps and lists in an argument by capitals alone; files are found in any case.
std::string InCapitals(std::string path) {
    if (path.ends_with(".tbm")) return WithoutExtension(path) + ".TBM";
    if (path.ends_with(".tbl")) return WithoutExtension(path) + ".TBL";
    return path;
}

} // namespace

std::vector<std::string> Options::ForSuccessor() const {
    std::vector<std::string> words;
    if (Directory) words.insert(words.end(), {"--dir", Directory->string()});
    if (Scale) words.insert(words.end(), {"--scale", std::to_string(*Scale)});
    if (Elsewhere) words.insert(words.end(), {"--elsewhere", Elsewhere->string()});
    if (FullScreen) words.emplace_back("--full-screen");
    if (Record) words.insert(words.end(), {"--record", NextRecording(*Record).string()});
    return words;
}

Options ReadOptions(std::span<char* const> words) {
    Options options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        const auto value = [&]() -> std::string_view {
            if (i + 1 == words.size() || *words[i + 1] == '\0') {
                throw std::runtime_error(std::string(word) + " needs a value");
            }
            return words[++i];
        };
        if (word == "--help") {
            options.Help = true;
        } else if (word == "--version") {
            options.Version = true;
        } else if (word == "--full-screen") {
            options.FullScreen = true;
        } else if (word == "--dir") {
            options.Directory = fs::absolute(value()).lexically_normal();
            std::error_code error;
            if (!fs::is_directory(*options.Directory, error)) {
                throw std::runtime_error(options.Directory->string() +
                                         ": there is no such directory");
            }
        } else if (word == "--scale") {
            options.Scale = WholeFrom(word, value(), 1, LargestScale);
        } else if (word == "--record") {
            options.Record = fs::absolute(value()).lexically_normal();
        } else if (word == "--replay") {
            options.Replay = fs::absolute(value()).lexically_normal();
        } else if (word == "--speed") {
            options.Speed = WholeFrom(word, value(), 1, 4);
            if (*options.Speed == 3) throw std::runtime_error("--speed is 1, 2 or 4");
        } else if (word == "--unsaved-settings") {
            options.Unsaved = std::string(value());
        } else if (word == "--elsewhere") {
            options.Elsewhere = fs::path(value());
        } else if (word == "--shown-pipe") {
            options.ShownPipe = WholeFrom(word, value(), 0, 1 << 20);
        } else if (word.starts_with("--")) {
            throw std::runtime_error("unknown option " + std::string(word) + "; see --help");
        } else {
            if (!options.Argument.empty()) options.Argument += ' ';
            options.Argument += word;
        }
    }
    if (options.Record && options.Replay) {
        throw std::runtime_error("--record and --replay don't go together");
    }
    if (options.Speed && !options.Replay) throw std::runtime_error("--speed belongs to --replay");
    return options;
}

fs::path NextRecording(const fs::path& file) {
    std::string stem = file.stem().string();
    const std::size_t dash = stem.rfind('-');
    std::int64_t number = 1;
    if (dash != std::string::npos && dash > 0) {
        if (const auto written = ReadInteger(std::string_view(stem).substr(dash + 1));
            written && *written > 1 && *written < MostRecordings) {
            number = *written;
            stem.resize(dash);
        }
    }
    fs::path next;
    std::error_code error;
    do {
        next = file;
        next.replace_filename(stem + '-' + std::to_string(++number) + file.extension().string());
    } while (fs::exists(next, error));
    return next;
}

const char* UsageText() {
    return "usage: tumbledeep [--dir DIR] [--scale N] [--full-screen] [--record FILE]\n"
           "                  [MAP | LIST]\n"
           "       tumbledeep [--dir DIR] [--scale N] --replay FILE [--speed 1 | 2 | 4] [MAP]\n"
           "\n"
           "  MAP         a map to play, such as \"First steps.TBM\"\n"
           "  LIST        a map list whose first map is played, such as Default.TBL\n"
           "  --dir DIR   where maps, lists and Tumbledeep.ini lie (default: beside the program\n"
           "              if it was unpacked, ~/.local/share/tumbledeep if it was installed)\n"
           "  --scale N   device pixels to a pixel of the game, 1 to 16 (default: by the screen)\n"
           "  --full-screen  the whole screen, as F11 gives it\n"
           "  --record FILE  writes what you do as a script for --replay and tumbledeep-trace, "
           "the\n"
           "              maps that follow into FILE-2 and so on; FILE must not exist\n"
           "  --replay FILE  plays a script, with the keys shown; settings stay as they are\n"
           "  --speed N   of the replay\n"
           "  --help      this text\n"
           "  --version   the program's version\n"
           "\n"
           "Keys: w a s d or the arrow keys to walk, dig and push, p to pause; F1 shows what is "
           "what.\n"
           "Maps of your own are checked and tried by tumbledeep-map; docs/MAPS.md tells how.\n";
}

std::string CommandText(const std::string& argument, const GameFolders& folders) {
    const bool quoted = argument.size() >= 2 && argument.front() == '"' && argument.back() == '"';
    const std::string name = quoted ? argument.substr(1, argument.size() - 2) : argument;
    if (name.empty() || HasDrive(name)) return argument;

    const fs::path host = HostPath(name);
    std::error_code error;
    if (host.is_absolute()) return InCapitals(ProgramPath(host));
    const bool isTheGames = fs::exists(folders.Find(folders.Own / host), error);
    if (!isTheGames && fs::exists(FindFile(host), error)) {
        return InCapitals(ProgramPath(host));
    }
    std::string relative = name;
    std::replace(relative.begin(), relative.end(), '/', '\\');
    return relative;
}

} // namespace tumbledeep
