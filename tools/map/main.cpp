// tumbledeep-map: checks maps and lists, draws them, turns them into text pictures and back, plays
// them. The words of the call are read here; each command is a file of its name.
#include "map/Commands.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <string>
#include <vector>

namespace tumbledeep {

namespace {

constexpr int Failed = 2;

struct Command {
    std::string_view Name;
    std::string_view Usage; ///< the words behind the name
    std::string_view Help;
    int (*Run)(Words words);
};

constexpr std::array<Command, 8> Commands{{
    {"check", "FILE...",
     "tells every doubt about maps, text pictures and map lists, with its line\n"
     "and a way to mend it; the status is 0 without any, 1 for warnings, 2 for errors",
     Check},
    {"draw", "MAP [-o FILE.png] [--scale N]",
     "shows the map in the terminal, or writes it as the game shows it, N pixels to\n"
     "a pixel of the game",
     Draw},
    {"from-picture", "FILE [-o MAP]", "makes a map of a text picture", FromPicture},
    {"to-picture", "MAP [-o FILE]", "makes a text picture of a map", ToPicture},
    {"info", "MAP [--json]", "tells size, counts, factories, and how long ticks take", Info},
    {"play", "MAP [--scale N]",
     "starts the game on the map wherever it lies; settings stay as they are", PlayMap},
    {"solve", "MAP [-o SCRIPT] [--seconds N] [--after SCRIPT] [--greedy]",
     "searches for keys that win, on from a script's last key if one is given, for a\n"
     "minute or N seconds; the status is 1 without any, and the best try is written;\n"
     "or writes what a greedy player does, which may serve as a bait",
     Solve},
    {"measure", "MAP [--quick] [--json] [--goal T|M|H] [--seconds N]",
     "plays the map in many ways, with the scripts in the folder \"solutions\" beside it and\n"
     "with bots, and tells how hard it is; the status is 1 when a goal is missed",
     Measure},
}};

constexpr std::string_view Tail =
    "MAP is a map (.TBM) or a text picture of one (any other name). docs/MAPS.md leads\n"
    "from an empty file to a map; docs/PICTURES.md tells how text pictures are written.\n";

void PrintUsage(const Command& command, std::ostream& to) {
    to << "usage: tumbledeep-map " << command.Name << ' ' << command.Usage << '\n';
}

void PrintHelp() {
    std::cout << "usage: tumbledeep-map COMMAND ...\n"
                 "       tumbledeep-map --help | --version\n\n";
    for (const Command& command : Commands) {
        std::cout << "  " << command.Name << ' ' << command.Usage << "\n      ";
        for (const char c : command.Help) std::cout << (c == '\n' ? "\n      " : std::string(1, c));
        std::cout << '\n';
    }
    std::cout << '\n' << Tail;
}

int RunCommand(const Command& command, Words words) {
    if (std::ranges::find(words, "--help") != words.end()) {
        PrintUsage(command, std::cout);
        std::cout << '\n' << command.Help << '\n';
        return 0;
    }
    try {
        const int status = command.Run(words);
        std::cout.flush();
        if (!std::cout) throw std::runtime_error("the output can't be written");
        return status;
    } catch (const CallFault& fault) {
        std::cerr << "tumbledeep-map " << command.Name << ": " << fault.what() << '\n';
        PrintUsage(command, std::cerr);
    }
    return Failed;
}

int Run(Words words) {
    const std::string_view first = words.empty() ? "" : words.front();
    if (first == "--version") {
        std::cout << "tumbledeep-map " TUMBLEDEEP_VERSION "\n";
        return 0;
    }
    if (first == "--help" || first == "-h") {
        PrintHelp();
        return 0;
    }
    const auto command = std::ranges::find(Commands, first, &Command::Name);
    if (command != Commands.end()) return RunCommand(*command, words.subspan(1));
    std::cerr << "tumbledeep-map: "
              << (words.empty() ? "a command is missing" : "there is no command ") << first
              << "; see --help\n";
    return Failed;
}

} // namespace

} // namespace tumbledeep

int main(int argc, char** argv) {
    try {
        const std::vector<std::string_view> words(argv + 1, argv + argc);
        return tumbledeep::Run(words);
    } catch (const std::runtime_error& fault) {
        std::cout.flush();
        std::cerr << "tumbledeep-map: " << fault.what() << '\n';
        return 2;
    }
}
