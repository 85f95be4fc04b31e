// Boards are made by the loader itself, from a map that is written here.
#include "support/Scenario.h"

#include <map>
#include <sstream>

namespace tumbledeep {

namespace {

constexpr std::string_view Looks = ".@:#*OTLRFPQX"; ///< in the order of Kind

/// A line of a map; a tag is written only where there is one.
std::string MapLine(char look, Cell cell, const std::string& tag = "") {
    const auto kind = static_cast<Kind>(Looks.find(look));
    return std::string(look == '^' ? "factory" : KindText(kind)) + " " +
           std::to_string((cell.Row - 1) * 360) + " " + std::to_string((cell.Col - 1) * 360) +
           (tag.empty() ? "" : " " + tag) + "\n";
}

} // namespace

Scenario::Scenario(std::string_view strip, std::string_view cast, Cell origin) : topLeft(origin) {
    std::istringstream lines{std::string(strip)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::size_t frame = 0;
        for (std::string word; words >> word; ++frame) {
            if (frame == frames.size()) frames.emplace_back();
            frames[frame].push_back(word);
        }
    }
    Services.Settings() = "[AutoMove]\nMOVE=False\nMODE=2\n";
    Game.Form.Width = 15360;
    Game.Form.Height = 11520;
    Game.MapFile = FieldInput(MapText(cast));
    Game.LoadNewMap();
    ForEach('X', [this](Cell cell) {
        Board.SpawnObject("bang", static_cast<float>(cell.Col - 1) * Pitch,
                          static_cast<float>(cell.Row - 1) * Pitch, "D");
    });
}

/// Acts on the cells of the first frame that hold a mark, row by row.
template <class Do> void Scenario::ForEach(char mark, Do act) const {
    for (std::size_t row = 0; row < frames[0].size(); ++row) {
        for (std::size_t col = 0; col < frames[0][row].size(); ++col) {
            if (frames[0][row][col] != mark) continue;
            act(Cell{topLeft.Col + static_cast<int>(col), topLeft.Row + static_cast<int>(row)});
        }
    }
}

std::string Scenario::MapText(std::string_view cast) const {
    std::string text;
    std::string named;
    std::string drawn;
    const auto place = [&](char mark, char look, const std::string& tag) {
        named += mark;
        ForEach(mark, [&](Cell cell) {
            text += MapLine(look, cell, tag);
            drawn += look;
        });
    };
    std::istringstream actors{std::string(cast)};
    for (std::string actor; actors >> actor;) {
        const std::size_t colon = actor.find(':', 1);
        place(actor[0], actor[1] == '=' ? actor[2] : actor[0],
              colon < actor.size() ? actor.substr(colon + 1) : "");
    }
    for (const char look : std::string_view("@:#*OTLRFPQ^")) {
        const bool heads = std::string_view("LRFPQ").find(look) < 5;
        if (named.find(look) > named.size()) place(look, look, heads ? "R" : "");
    }
    if (drawn.find('@') > drawn.size()) text += MapLine('@', {299, 299});
    if (drawn.find('*') > drawn.size()) text += MapLine('*', {300, 300});
    return text;
}

void Scenario::Ticks(int count) {
    for (int i = 0; i < count && !Ended; ++i) Run(&frmDocument::Interval100Timer_Timer);
}

void Scenario::TickNumber(int tickCount) {
    Board.TickCount = static_cast<std::int16_t>(tickCount == 0 ? 300 : tickCount - 1);
    Ticks(1);
}

void Scenario::Type(std::string_view keys) {
    for (const char key : keys) {
        Board.Input_Box.Text = key;
        Board.Input_Box_Change();
        EXPECT_EQ(Board.Input_Box.Text, "");
    }
}

void Scenario::Run(Routine routine) {
    try {
        (Board.*routine)();
    } catch (const ProgramEnd&) {
        Ended = true;
    }
}

char Scenario::LookOfSprites(Cell cell) {
    const auto standsHere = [cell](const auto& sprite) {
        const Cell own = Near(sprite);
        return own.Col == cell.Col && own.Row == cell.Row;
    };
    std::string looks = standsHere(Board.You) ? "@" : "";
    for (std::size_t kind = 0; kind < Looks.size(); ++kind) {
        Pool* const pool = Board.PoolOf(static_cast<Kind>(kind));
        for (int i = 0; pool != nullptr && i < pool->Count(); ++i) {
            if (pool->Shown(i) && standsHere((*pool)[i])) looks += Looks[kind];
        }
    }
    if (looks.size() > 1) return static_cast<char>('0' + looks.size());
    for (int i = 0; looks.empty() && i < Board.Factory.Count(); ++i) {
        if (Board.Factory.Shown(i) && standsHere(Board.Factory[i])) looks = "^";
    }
    return looks.empty() ? '.' : looks[0];
}

testing::AssertionResult Scenario::Compare(bool area, bool sprites) {
    if (FramesLeft() == 0) return testing::AssertionFailure() << "the strip has ended";
    ++shown;
    std::string boards;
    bool same = true;
    int row = topLeft.Row;
    for (const std::string& expected : frames[shown]) {
        std::string inArea;
        std::string seen;
        for (const char look : expected) {
            const Cell cell{topLeft.Col + static_cast<int>(seen.size()), row};
            inArea += Looks[static_cast<std::size_t>(Board.Area(cell))];
            seen += LookOfSprites(cell);
            same = same && (!area || inArea.back() == (look == '^' ? '.' : look)) &&
                   (!sprites || seen.back() == look);
        }
        boards += expected + "   " + inArea + "   " + seen + "\n";
        ++row;
    }
    return (same ? testing::AssertionSuccess() : testing::AssertionFailure())
           << "frame " << shown + 1 << "; expected, Area, sprites:\n"
           << boards;
}

namespace {

void PlayFilm(const std::string& header, const std::string& strip, Scenario::Routine routine) {
    SCOPED_TRACE(header);
    std::string cast;
    std::map<std::string, std::string> options{{"at", "1,1"}};
    std::istringstream words(header);
    words.ignore(static_cast<std::streamsize>(header.size()), '|');
    for (std::string word; words >> word;) {
        const std::size_t colon = word.find(':');
        if (colon == 1 || word[1] == '=') {
            cast += word + " ";
        } else {
            options[word.substr(0, colon)] = colon < word.size() ? word.substr(colon + 1) : "";
        }
    }
    const bool typed = options.contains("key");
    const std::string at = options["at"];
    Scenario scene(strip, cast, {std::stoi(at), std::stoi(at.substr(at.find(',') + 1))});
    for (const char side : options["draw"]) {
        scene.Services.Draws.push_back(side == 'R' ? 0.49F : 0.5F);
    }
    for (const char key : options["held"]) {
        scene.Services.KeysDown.insert(37 + static_cast<int>(std::string("LURD").find(key)));
    }
    int tick = options.contains("tick") ? std::stoi(options["tick"]) : -1;
    std::istringstream keys(options["key"]);
    while (scene.FramesLeft() > 0) {
        if (tick >= 0) scene.TickNumber(tick++);
        std::string frameKeys;
        std::getline(keys, frameKeys, ',');
        for (const char key : frameKeys) key == '.' ? scene.Ticks(1) : scene.Type({&key, 1});
        if (!typed && tick < 0) scene.Run(routine);
        EXPECT_TRUE(options.contains("sprites") ? scene.NextSprites() : scene.Next());
    }
    EXPECT_EQ(scene.Ended, options.contains("dies"));
    if (options.contains("ready") || options.contains("busy")) {
        EXPECT_EQ(scene.Board.MoveReady, options.contains("ready"));
    }
}

} // namespace

void PlayFilms(std::string_view films, Scenario::Routine routine) {
    std::istringstream lines{std::string(films)};
    std::string header;
    std::string strip;
    const auto play = [&] {
        if (!strip.empty()) PlayFilm(header, strip, routine);
        strip.clear();
    };
    for (std::string line; std::getline(lines, line);) {
        const std::size_t start = line.find('=');
        if (start != line.find_first_not_of(' ')) {
            strip += line + "\n";
        } else if (start != std::string::npos) {
            play();
            header = line;
        }
    }
    play();
}

} // namespace tumbledeep
