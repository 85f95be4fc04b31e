// Boards are made by the loader itself, from a map that is written here.
#include "support/Scenario.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace tumbledeep {

namespace {

constexpr std::string_view Looks = ".@:#*OTLRFPQX"; ///< in the order of Kind
constexpr std::string_view Mines = "LRFPQ";

/// A line of a map; a tag is written only where there is one.
std::string MapLine(char look, Cell cell, const std::string& tag = "") {
    const auto kind = static_cast<Kind>(Looks.find(look));
    return std::string(look == '^' ? "factory" : KindText(kind)) + " " +
           std::to_string((cell.Row - 1) * 360) + " " + std::to_string((cell.Col - 1) * 360) +
           (tag.empty() ? "" : " " + tag) + "\n";
}

bool StandsAt(const auto& sprite, Cell cell) {
    const Cell own = Near(sprite);
    return own.Col == cell.Col && own.Row == cell.Row;
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
        const bool hasLook = actor.size() > 2 && actor[1] == '=';
        const std::size_t colon = actor.find(':', 1);
        place(actor[0], hasLook ? actor[2] : actor[0],
              colon == std::string::npos ? "" : actor.substr(colon + 1));
    }
    for (const char look : std::string_view("@:#*OTLRFPQ^")) {
        if (named.find(look) != std::string::npos) continue;
        place(look, look, Mines.find(look) != std::string_view::npos ? "R" : "");
    }
    if (drawn.find('@') == std::string::npos) text += MapLine('@', {299, 299});
    if (drawn.find('*') == std::string::npos) text += MapLine('*', {300, 300});
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
    int count = StandsAt(Board.You, cell) ? 1 : 0;
    char look = count > 0 ? '@' : '.';
    for (std::size_t kind = 0; kind < Looks.size(); ++kind) {
        Pool* const pool = Board.PoolOf(static_cast<Kind>(kind));
        for (int i = 0; pool != nullptr && i < pool->Count(); ++i) {
            if (!pool->Shown(i) || !StandsAt((*pool)[i], cell)) continue;
            ++count;
            look = Looks[kind];
        }
    }
    for (int i = 0; count == 0 && i < Board.Factory.Count(); ++i) {
        if (Board.Factory.Shown(i) && StandsAt(Board.Factory[i], cell)) look = '^';
    }
    return count > 1 ? static_cast<char>('0' + count) : look;
}

testing::AssertionResult Scenario::Compare(bool area, bool sprites) {
    if (FramesLeft() == 0) return testing::AssertionFailure() << "the strip has ended";
    ++shown;
    const auto column = [](std::string text) { return text += std::string(3, ' '); };
    std::string boards = "expected, Area, sprites:\n";
    bool same = true;
    for (std::size_t row = 0; row < frames[shown].size(); ++row) {
        const std::string& expected = frames[shown][row];
        std::string areaRow;
        std::string spriteRow;
        for (std::size_t col = 0; col < expected.size(); ++col) {
            const Cell cell{topLeft.Col + static_cast<int>(col),
                            topLeft.Row + static_cast<int>(row)};
            areaRow += Looks[static_cast<std::size_t>(Board.Area(cell))];
            spriteRow += LookOfSprites(cell);
            const char inArea = expected[col] == '^' ? '.' : expected[col];
            same = same && (!area || areaRow.back() == inArea) &&
                   (!sprites || spriteRow.back() == expected[col]);
        }
        boards += column(expected) + column(areaRow) + spriteRow + "\n";
    }
    return (same ? testing::AssertionSuccess() : testing::AssertionFailure())
           << "frame " << shown + 1 << "; " << boards;
}

namespace {

void PlayFilm(const std::string& header, const std::string& strip, Scenario::Routine routine) {
    SCOPED_TRACE(header);
    std::string cast;
    std::map<std::string, std::string> options;
    std::istringstream words(header.substr(std::min(header.find('|') + 1, header.size())));
    for (std::string word; header.find('|') != std::string::npos && words >> word;) {
        const std::size_t colon = word.find(':');
        if (colon == 1 || (word.size() > 1 && word[1] == '=')) {
            cast += word + " ";
        } else {
            options[word.substr(0, colon)] = word.substr(std::min(colon, word.size() - 1) + 1);
        }
    }
    const auto option = [&options](const char* name, const char* otherwise = "") {
        return options.contains(name) ? options[name] : otherwise;
    };
    const std::string at = option("at", "1,1");
    const Cell origin{std::stoi(at), std::stoi(at.substr(at.find(',') + 1))};
    Scenario scene(strip, cast, origin);
    for (const char side : option("draw")) {
        scene.Services.Draws.push_back(side == 'R' ? 0.49F : 0.5F);
    }
    for (const char key : option("held")) {
        scene.Services.KeysDown.insert(37 + static_cast<int>(std::string("LURD").find(key)));
    }
    std::istringstream keys(option("key"));
    for (std::string typed; scene.FramesLeft() > 0;) {
        if (options.contains("key")) {
            std::getline(keys, typed, ',');
            for (const char key : typed) {
                key == '.' ? scene.Ticks(1) : scene.Type(std::string(1, key));
            }
        } else if (options.contains("tick")) {
            scene.TickNumber(std::stoi(options["tick"]));
            options["tick"] = std::to_string(scene.Board.TickCount + 1);
        } else {
            scene.Run(routine);
        }
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
    for (std::string line; std::getline(lines, line);) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start != std::string::npos && line[start] == '=') {
            if (!strip.empty()) PlayFilm(header, strip, routine);
            header = line.substr(start);
            strip.clear();
        } else if (start != std::string::npos) {
            strip += line + "\n";
        }
    }
    PlayFilm(header, strip, routine);
}

} // namespace tumbledeep
