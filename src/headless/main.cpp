// tumbledeep-trace: plays the game from a script and prints what happens as plain lines. The
// command line is read here and faults become exit statuses; the run itself is Play.h's.
#include "base/Failure.h"
#include "base/Number.h"
#include "headless/Play.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "windows/frmMain.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <iterator>
#include <limits>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

using namespace tumbledeep;

constexpr int WrongCall = 2;

struct CallFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Call {
    PlayOptions Options;
    std::string Directory = ".";
    std::optional<std::string> ScriptFile;
    bool Timed = false;
};

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

std::int64_t WholeUpTo(std::string_view option, std::string_view text, std::int64_t limit) {
    const auto value = ReadInteger(text);
    if (!value || *value < 0 || *value > limit) {
        throw CallFault(std::string(option) + " needs a whole number from 0 to " +
                        std::to_string(limit));
    }
    return *value;
}

void SetOption(Call& call, std::string_view name, std::string_view value) {
    if (name == "--dir") {
        call.Directory = value;
    } else if (name == "--script") {
        call.ScriptFile = std::string(value);
    } else if (name == "--seed") {
        call.Options.Run.Seed = static_cast<std::uint32_t>(
            WholeUpTo(name, value, std::numeric_limits<std::uint32_t>::max()));
    } else if (name == "--steps") {
        call.Options.Steps = WholeUpTo(name, value, std::numeric_limits<std::int64_t>::max());
    } else {
        const auto size = ReadSize(value);
        if (!size) throw CallFault("--parent needs a size such as 15360x11520");
        call.Options.Parent = *size;
    }
}

Call ReadCall(std::span<char* const> words) {
    static constexpr std::array<std::string_view, 5> WithValue{"--dir", "--seed", "--script",
                                                               "--steps", "--parent"};
    Call call;
    bool hasArgument = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word == "--quiet") {
            call.Options.Quiet = true;
        } else if (word == "--timing") {
            call.Timed = true;
        } else if (std::find(WithValue.begin(), WithValue.end(), word) != WithValue.end()) {
            if (i + 1 == words.size()) throw CallFault(std::string(word) + " needs a value");
            SetOption(call, word, words[++i]);
        } else if (word.starts_with("--")) {
            throw CallFault("unknown option " + std::string(word));
        } else if (hasArgument) {
            throw CallFault("more than one argument: " + std::string(word));
        } else {
            call.Options.Run.Command = word;
            hasArgument = true;
        }
    }
    return call;
}

std::string ReadAll(const std::string& file) {
    if (file == "-") return {std::istreambuf_iterator<char>(std::cin), {}};
    try {
        return ReadFile(file, Sources::Any);
    } catch (const Failure& failure) {
        throw CallFault(file + (failure.Number == Failure::FileNotFound
                                    ? ": there is no such script"
                                    : ": the script can't be read"));
    }
}

Script ScriptOf(const Call& call) {
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
        Call call = ReadCall(words);
        std::error_code error;
        if (!std::filesystem::is_directory(call.Directory, error)) {
            throw CallFault(call.Directory + ": there is no such directory");
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
