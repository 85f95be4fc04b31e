// Any bytes as a map, and a hand that plays it in the whole program. The input is the map and,
// behind its last NUL, what Hand.h plays; these characters stand there too:
//     Y N T K       answers to the dialogs, in their order: yes, no, a mode, a list
//     I             the map is painted as it stands at its start
//     M             a short map's lines stand a hundred times each
//     B             a board alone takes the small letters, and a copy of it plays on alike
//     C             what is done is recorded, and the recording must play to the same end
#include "Hand.h"
#include "Target.h"

#include "base/Failure.h"
#include "formats/LoadMap.h"
#include "host/MemoryPlatform.h"
#include "map/draw/BoardImage.h"
#include "windows/hands/Recorder.h"
#include "windows/hands/Replay.h"

#include <algorithm>
#include <optional>

namespace tumbledeep {

namespace {

constexpr const char* MapPath = "Z:\\game\\m.TBM";
constexpr const char* ListPath = "Z:\\game\\Default.TBL";
constexpr int MostPeriods = 500;

void Prepare(MemoryPlatform& system, std::string_view map) {
    system.CommandLine = MapPath;
    system.SeedNumber = 1;
    system.Files[MapPath] = map;
    system.Files[ListPath] = "m\nn\n";
}

std::deque<std::string> AnswersIn(std::string_view acts) {
    std::deque<std::string> answers;
    for (const char sign : acts) {
        if (sign == 'Y') answers.emplace_back("yes");
        if (sign == 'N') answers.emplace_back("no");
        if (sign == 'T') answers.emplace_back("1");
        if (sign == 'K') answers.emplace_back(ListPath);
    }
    return answers;
}

void Play(std::string_view map, std::string_view acts) {
    MemoryPlatform system;
    Prepare(system, map);
    system.Answers = AnswersIn(acts);
    Hands hands;
    frmMain game(system);
    game.Take(LargeWindow);
    try {
        hands.Start(game);
        Hand(std::string(acts), MostPeriods).Play(game, hands);
    } catch (const ProgramEnd&) {
        Hold(system.Log.ends_with("end"), "nothing is asked behind the program's end");
    }
}

/// The steps of a recording, as its last line has them.
int StepsOf(const std::string& lines) {
    const std::size_t stop = lines.rfind("# stop ");
    Hold(stop != std::string::npos, "a recording has a last line");
    return std::stoi(lines.substr(stop + 7));
}

void RecordAndReplay(std::string_view map, std::string_view acts) {
    MemoryPlatform system;
    Prepare(system, map);
    system.Settings() = "[AutoMove]\nMOVE=True\nMODE=2\n";
    system.Answers = AnswersIn(acts);
    std::string lines;
    Recorder recorder(system, [&lines](const std::string& line) { lines += line; });
    frmMain played(recorder);
    try {
        recorder.Start(played);
        Hand(std::string(acts), MostPeriods).Play(played, recorder);
        // What is done while the clock stands for good has no step to be played in.
        recorder.Act(played, {PlayerAct::Do::GotFocus});
        recorder.Period(played);
    } catch (const ProgramEnd&) {
    }
    recorder.Finish(played);

    MemoryPlatform shown;
    Prepare(shown, map);
    Replay replay(shown, ReadScript("s", lines, &IsMenuHandler), ReadRecordingHead(lines), MapPath);
    frmMain again(replay);
    try {
        replay.Start(again);
        for (int step = StepsOf(lines); step > 0; --step) replay.Period(again);
    } catch (const ProgramEnd&) {
    }
    Hold(lines.ends_with("# " + replay.LastLine(again) + "\n"), "a replay ends as the recording");
    Hold(played.ActiveChild.HashValue() == again.ActiveChild.HashValue(),
         "a replay has the board of the recording");
}

/// Half of the letters on one board, the others on it and on a copy.
void PlayCopies(const std::string& map, std::string_view acts) {
    try {
        Board board = LoadMap(map, 1);
        std::optional<Board> copy;
        for (std::size_t i = 0; i < acts.size(); ++i) {
            if (i == acts.size() / 2) copy = board;
            const std::string_view act = acts.substr(i, 1);
            const std::string_view key = act >= "a" && act <= "z" ? act : "";
            for (int period = 0; period < 10; ++period) {
                const Outcome outcome = board.Period(key, {});
                Hold(!copy || copy->Period(key, {}) == outcome, "a copy has the same outcome");
                if (outcome != Outcome::Running) return;
            }
        }
        Hold(!copy || (*copy == board && copy->HashValue() == board.HashValue()),
             "a copy plays on as its original");
    } catch (const Failure&) {
        // The map can't be loaded.
    }
}

/// Of a long map nothing is repeated: that would take too long.
std::string Crowded(std::string_view map) {
    constexpr std::size_t longest = 1000;
    std::string crowd;
    if (map.size() > longest) return std::string(map);
    for (std::size_t start = 0; start < map.size();) {
        const std::size_t end = std::min(map.find('\n', start), map.size() - 1) + 1;
        for (int i = 0; i < 100; ++i) crowd += map.substr(start, end - start);
        start = end;
    }
    return crowd;
}

/// Small boards alone, as an image takes its time.
void Paint(std::string_view map) {
    try {
        const Board board = LoadMap(std::string(map), 1);
        constexpr float largest = 20 * Pitch;
        const MapEdges edges = board.MeasureMap();
        if (edges.MapRight <= largest && edges.MapBottom <= largest) DrawBoard(board, 1);
    } catch (const Failure&) {
    } catch (const std::runtime_error&) {
        // Nothing to draw.
    }
}

} // namespace

void Fuzz(std::string_view bytes) {
    const std::size_t end = bytes.rfind('\0');
    const std::string_view acts = end < bytes.size() ? bytes.substr(end + 1) : "";
    std::string map(bytes.substr(0, end));
    if (acts.find('M') < acts.size()) map = Crowded(map);
    if (acts.find('I') < acts.size()) Paint(map);
    if (acts.find('B') < acts.size()) return PlayCopies(map, acts.substr(0, 50));
    if (acts.find('C') < acts.size()) return RecordAndReplay(map, acts);
    Play(map, acts);
}

} // namespace tumbledeep
