// All roads into a map, over several processes in a row, in a made-up folder. The fields of the
// input: the words of a command line, a line each, which both front ends read; the settings; the
// answers to the dialogs, a line each; what the player does, by Hand.h; the bytes of mine.TBL;
// those of mine.TBM.
#include "Fields.h"
#include "Hand.h"
#include "Target.h"

#include "desktop/Options.h"
#include "headless/TraceCall.h"
#include "host/MemoryPlatform.h"

#include <stdexcept>

namespace tumbledeep {

namespace {

constexpr int MostProcesses = 8;
constexpr int MostPeriods = 200;

std::string InFolder(const char* name) {
    return std::string(MemoryPlatform::Directory) + "\\" + name;
}

void Furnish(MemoryPlatform& system) {
    for (const char* map : {"one.TBM", "two.tbm", "two.TBM", "a b.TBM"}) {
        system.Files[InFolder(map)] = "title One\nyou 0 0\ngem1type 0 360\nmovingmineT 0 1080\n";
    }
    system.Files["Z:\\maps\\one.TBM"] = "you 360 360\ndirt 720 720\ngem1type 360 3600\n";
    system.Files[InFolder("Default.TBL")] = "one\ntwo\na b\n";
    system.Files[InFolder("none.TBL")] = "";
    system.Files[InFolder("bad.TBM")] = "dirt x 0\n";
}

std::vector<char*> PointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    return pointers;
}

void ReadByTheTrace(std::vector<std::string> words) {
    try {
        const TraceCall call = ReadTraceCall(PointersTo(words));
        Hold(call.Options.Steps >= 0, "the trace plays a number of steps");
    } catch (const TraceCallFault&) {
    }
}

/// The game's command line for the words, as the desktop makes it. Throws std::runtime_error, with
/// what the player is told.
std::string CommandOf(std::vector<std::string> words) {
    const Options options = ReadOptions(PointersTo(words));
    options.ForSuccessor();
    return CommandText(options.Argument, {".", {}});
}

/// A process. True if it has started another one.
bool PlayOne(MemoryPlatform& system, Hand& hand) {
    Hands hands;
    system.Log.clear();
    frmMain game(system);
    game.Take(LargeWindow);
    try {
        hands.Start(game);
        hand.Play(game, hands);
        return false;
    } catch (const ProgramEnd&) {
        Hold(system.Log.ends_with("end"), "nothing is asked behind the program's end");
    }
    const std::string shell = "start .\\tumbledeep";
    const std::size_t start = system.Log.rfind(shell);
    if (start == std::string::npos) return false;
    const std::size_t words = start + shell.size();
    const std::string line = system.Log.substr(words, system.Log.rfind("; end") - words);
    system.CommandLine = line.empty() ? line : line.substr(1);
    return true;
}

} // namespace

void Fuzz(std::string_view bytes) {
    MemoryPlatform system;
    Furnish(system);
    const std::vector<std::string> words = Lines(TakeField(bytes));
    ReadByTheTrace(words);
    try {
        system.CommandLine = CommandOf(words);
    } catch (const std::runtime_error&) {
        return;
    }
    system.Settings() = TakeField(bytes);
    for (const std::string& answer : Lines(TakeField(bytes))) system.Answers.push_back(answer);
    Hand hand(TakeField(bytes), MostPeriods);
    system.Files[InFolder("mine.TBL")] = TakeField(bytes);
    system.Files[InFolder("mine.TBM")] = TakeField(bytes);
    for (int i = 0; i < MostProcesses && PlayOne(system, hand); ++i) {
    }
}

} // namespace tumbledeep
