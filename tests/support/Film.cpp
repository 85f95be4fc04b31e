// A film is read word by word, loaded as the text of a map, and each picture compared as text.
#include "support/Film.h"

#include "formats/LoadMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

namespace tumbledeep {

namespace {

// In the order of Kind.
constexpr std::string_view Looks = ".@#:*OTLRFPQ^X";
constexpr std::string_view Unmarked = "  %;+otlrfpq^x";
// In the order of Outcome.
constexpr std::array<std::string_view, 4> Ends{"runs", "wins", "dies", "untold"};

/// A mark of the first frame, and then each sprite that it stands for.
struct Actor {
    char Mark;
    Kind What;
    char How; ///< "!" hidden, "?" hidden but for the grid, "~" hidden from the grid
    std::string Tag;
    Cell Where{};
    int Index = 0;
};

struct Film {
    std::string Title;
    std::vector<Actor> Cast;
    std::vector<std::string> Frames; ///< each row ends with a line feed
    std::map<std::string, std::string> Words{{"draw", ""},  {"tick", "1"},   {"held", ""},
                                             {"at", "1,1"}, {"key", ""},     {"heads", ""},
                                             {"ready", ""}, {"ends", "runs"}};

    template <class Do> void ForEachCell(std::size_t frame, Do act) {
        const std::size_t comma = Words["at"].find(',');
        const Cell topLeft{std::stoi(Words["at"]), std::stoi(Words["at"].substr(comma + 1))};
        Cell cell = topLeft;
        for (char& mark : Frames[frame]) {
            if (mark != '\n') act(mark, cell);
            cell = mark == '\n' ? Cell{topLeft.Col, cell.Row + 1} : Cell{cell.Col + 1, cell.Row};
        }
    }
};

Actor ReadActor(const std::string& word) {
    const std::size_t look = word[1] == '=' ? 2 : 0;
    const std::size_t kind = std::min(Looks.find(word[look]), Unmarked.find(word[look]));
    const std::size_t colon = std::min(word.find(':', look + 1), word.size());
    const char how = Looks[kind] == word[look] ? word[colon - 1] : '~';
    return {word[0], static_cast<Kind>(kind), how,
            colon < word.size() ? word.substr(colon + 1) : "R"};
}

/// The sprites of the first frame, as lines of a map.
std::string MapOf(Film& film, std::vector<Actor>& sprites) {
    std::string text;
    std::array<int, KindCount> counts{};
    const auto place = [&](Actor sprite, Cell cell) {
        const int before = counts.at(static_cast<std::size_t>(sprite.What))++;
        sprite.Index = sprite.What == Kind::Bang ? before : before + 1;
        sprite.Where = cell;
        sprites.push_back(sprite);
        text += std::string(KindText(sprite.What)) + " " + std::to_string((cell.Row - 1) * 360) +
                " " + std::to_string((cell.Col - 1) * 360);
        const bool tagged = sprite.What != Kind::You && RowOf(sprite.What).Tag != TagUse::None;
        text += tagged ? " " + sprite.Tag + "\n" : "\n";
    };
    for (const Actor& actor : film.Cast) {
        film.ForEachCell(0, [&](char mark, Cell cell) {
            if (mark == actor.Mark) place(actor, cell);
        });
    }
    if (text.find("you ") > text.size()) place(ReadActor("@"), {299, 299});
    if (text.find("gem1type ") > text.size()) place(ReadActor("*"), {300, 300});
    return text;
}

Board Load(Film& film, std::uint32_t seed) {
    std::vector<Actor> sprites;
    Board board = LoadMap(MapOf(film, sprites), seed);
    const auto hide = [&](char how) {
        for (const Actor& sprite : sprites) {
            if (sprite.How == how) board.Pools[sprite.What].Hide(sprite.Index);
        }
    };
    for (const auto& [mark, what, how, tag, cell, index] : sprites) {
        if (what != Kind::Bang) continue; // no map can place it
        board.SpawnObject(what, static_cast<float>(cell.Col - 1) * Pitch,
                          static_cast<float>(cell.Row - 1) * Pitch, Heading::Down);
    }
    hide('!');
    board.ResetStart(seed);
    for (const Actor& sprite : sprites) {
        if (sprite.How == 'X') board.Area.Set(sprite.Where, Kind::Bang);
    }
    hide('?');
    return board;
}

/// What a picture shows of a cell.
char LookOf(const Board& board, Cell cell) {
    std::string looks = CellOf(board.You) == cell ? "@" : "";
    char ground = '.';
    for (const KindRow& row : PoolKinds()) {
        const Pool& pool = board.Pools[row.Which];
        const char look = Looks[static_cast<std::size_t>(row.Which)];
        for (const int index : pool.InTurn()) {
            if (CellOf(pool[index]) != cell) continue;
            look == '^' ? void(ground = look) : looks.push_back(look);
        }
    }
    const char told = Looks[static_cast<std::size_t>(board.Area(cell))];
    if (looks.size() > 1) return static_cast<char>('0' + looks.size());
    if (told == '.') return looks.empty() ? ground : Unmarked[Looks.find(looks)];
    return looks == std::string(1, told) ? told : '?';
}

std::string HeadsOf(const Board& board) {
    std::string heads;
    for (const KindRow& row : PoolKinds()) {
        if (row.Tag != TagUse::Heading) continue;
        const Pool& mines = board.Pools[row.Which];
        for (const int mine : mines.InTurn()) {
            const auto heading = mines.HeadingOf(mine);
            const Picture look = heading ? HeadingPicture(row.UpPic, *heading) : row.Template;
            heads += mines[mine].Look == look ? "" : "/";
            heads += heading ? mines.TagText(mine) : "-";
        }
    }
    return heads;
}

/// The first seed that draws these sides.
std::uint32_t SeedOf(const std::string& sides) {
    for (std::uint32_t seed = 0;; ++seed) {
        Random random;
        random.Seed(seed);
        const auto drawn = [&](char side) { return (random.Rnd() < 0.5F) == (side == 'R'); };
        if (std::all_of(sides.begin(), sides.end(), drawn)) return seed;
    }
}

void Play(Film& film, Routine routine) {
    SCOPED_TRACE(film.Title);
    Board board = Load(film, SeedOf(film.Words["draw"]));
    board.TickCount = To16(std::stoi(film.Words["tick"]) - 1);
    HeldKeys held;
    for (const char& way : film.Words["held"]) held.Set(*HeadingNamed({&way, 1}), true);
    std::istringstream keys(film.Words["key"]);
    std::istringstream heads(film.Words["heads"]);
    for (std::size_t frame = 1; frame < film.Frames.size(); ++frame) {
        SCOPED_TRACE("frame " + std::to_string(frame + 1));
        std::string acts;
        if (!std::getline(keys, acts, ',')) acts = routine == nullptr ? "." : "!";
        for (const char& act : acts) {
            if (act == '!')
                (board.*routine)();
            else if (act == '.')
                board.Period("", held);
            else
                board.MoveYou({&act, 1});
        }
        const std::string expected = film.Frames[frame];
        film.ForEachCell(frame, [&](char& mark, Cell cell) { mark = LookOf(board, cell); });
        EXPECT_EQ(film.Frames[frame], expected);
        const bool last = frame + 1 == film.Frames.size();
        EXPECT_EQ(Ends.at(static_cast<std::size_t>(board.Result)),
                  last ? film.Words["ends"] : "runs");
        std::string headings;
        if (std::getline(heads, headings, ',')) {
            EXPECT_EQ(HeadsOf(board), headings);
        }
    }
    const std::string& ready = film.Words["ready"];
    EXPECT_TRUE(ready.empty() || ready == (board.MoveReady ? "yes" : "no"));
}

/// Reads the words behind the title's bar; whatever they do not name plays itself.
void ReadCast(Film& film) {
    std::istringstream words(film.Title);
    words.ignore(static_cast<std::streamsize>(film.Title.size()), '|');
    std::string named = ".";
    for (std::string word; words >> word;) {
        const std::size_t colon = word.find(':');
        if (word == "|") continue;
        if (colon == 1 || word[1] == '=') {
            film.Cast.push_back(ReadActor(word));
            named += word[0];
        } else {
            film.Words.at(word.substr(0, colon)) = word.substr(colon + 1);
        }
    }
    for (const char look : Looks) {
        if (named.find(look) > named.size()) film.Cast.push_back(ReadActor({look}));
    }
}

} // namespace

void PlayFilms(std::string_view films, Routine routine) {
    std::istringstream lines{std::string(films)};
    Film film;
    const auto play = [&] {
        if (film.Frames.empty()) return;
        ReadCast(film);
        Play(film, routine);
    };
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string row;
        for (std::size_t frame = 0; words >> row && row != "=" && row != "|"; ++frame) {
            film.Frames.resize(std::max(film.Frames.size(), frame + 1));
            film.Frames[frame] += row + "\n";
        }
        if (row == "|") film.Title += line;
        if (row != "=") continue;
        play();
        film = Film{};
        film.Title = line;
    }
    play();
}

} // namespace tumbledeep
