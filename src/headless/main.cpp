// tumbledeep-trace: plays the game from a script and prints what happens as plain lines. Files are
// read here and faults become exit statuses; the command line is TraceCall.h's, the run Play.h's.
#include "base/Failure.h"
#include "headless/TraceCall.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "windows/frmMain.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace {

using namespace tumbledeep;

constexpr int WrongCall = 2;

constexpr std::string_view Usage =
    "usage: tumbledeep-trace [--dir DIR] [--seed N] [--script FILE] [--steps N] [--parent WxH]\n"
    "                        [--quiet] [--timing] [ARGUMENT]\n"
    "       tumbledeep-trace --help | --version\n"
    "\n"
    "  --dir DIR      the program's directory: maps, lists and Tumbledeep.ini (default: .)\n"
    "  --seed N       what the clock gives when random numbers are seeded (default: 0)\n"
    "  --script FILE  the player's hands; - is standard input (default: none)\n"
    "  --steps N      timer periods to play after the start-up (default: 1000)\n"
    "  --parent WxH   outer size of the parent window in twips (default: 15360x11520)\n"
    "  --quiet        print no var, cell, sprite and view lines\n"
    "  --timing       tell at the end, on standard error, what load and ticks took\n"
    "  ARGUMENT       the text of the command line, passed on as it stands\n";

std::string ReadAll(const std::string& file) {
    if (file == "-") return {std::istreambuf_iterator<char>(std::cin), {}};
    try {
        return ReadFile(file, Sources::Any);
    } catch (const Failure& failure) {
        throw TraceCallFault(file + (failure.Number == Failure::FileNotFound
                                         ? ": there is no such script"
                                         : ": the script can't be read"));
    }
}

Script ScriptOf(const TraceCall& call) {
    if (!call.ScriptFile) return {};
    const std::string name = *call.ScriptFile == "-" ? "standard input" : *call.ScriptFile;
    return ReadScript(name, ReadAll(*call.ScriptFile), &IsMenuHandler);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::span<char* const> words(argv + 1, static_cast<std::size_t>(argc - 1));
        for (const std::string_view word : words) {
            if (word != "--help" && word != "--version") continue;
            std::cout << (word == "--help" ? Usage : "tumbledeep-trace " TUMBLEDEEP_VERSION "\n");
            return 0;
        }
        std::ios::sync_with_stdio(false);
        TraceCall call = ReadTraceCall(words);
        std::error_code error;
        if (!std::filesystem::is_directory(call.Directory, error)) {
            throw TraceCallFault(call.Directory + ": there is no such directory");
        }
        call.Options.Run.Directory = ProgramPath(call.Directory);
        Script script = ScriptOf(call);
        Timing timing;
        Play(call.Options, std::move(script), std::cout, call.Timed ? &timing : nullptr);
        std::cout.flush();
        if (call.Timed) std::cerr << timing.Line(call.Options.Steps) << '\n';
        return std::cout ? 0 : 1;
    } catch (const std::runtime_error& fault) {
        std::cout.flush();
        std::cerr << "tumbledeep-trace: " << fault.what() << '\n';
        return WrongCall;
    }
}
