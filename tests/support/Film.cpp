// How films are read and played: word by word, loaded as the text of a map, and each picture
// compared as text. What may stand in a film is told in the header.
#include "support/Film.h"

#include "formats/LoadMap.h"

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
    Cell Where{0, 0};
    int Index = 0;
};

struct Film {
    std::string Title;
    std::vector<Actor> Cast;
    std::vector<std::string> Frames; ///< each row ends with a line feed
    std::map<std::string, std::string> Words{{"draw", ""},  {"tick", "1"},   {"held", ""},
                                             {"at", "1,1"}, {"key", ""},     {"heads", ""},
                                             {"ready", ""}, {"ends", "runs"}};

    /// The cell of a mark by its place in a frame.
    Cell CellAt(std::size_t place) {
        const std::string& at = Words["at"];
        const std::size_t width = Frames[0].find('\n') + 1;
        return {std::stoi(at) + static_cast<int>(place % width),
                std::stoi(at.substr(at.find(',') + 1)) + static_cast<int>(place / width)};
    }
};

Actor ReadActor(const std::string& word) {
    const std::size_t look = word[1] == '=' ? 2 : 0;
    const std::size_t kind = std::min(Looks.find(word[look]), Unmarked.find(word[look]));
    const std::size_t colon = word.find(':', look + 1);
    const char how = Looks[kind] == word[look] ? word.substr(0, colon).back() : '~';
    const std::string tag = std::string_view("LRFPQ").find(word[look]) < 5 ? "R" : "";
    return {word[0], static_cast<Kind>(kind), how,
            colon < word.size() ? word.substr(colon + 1) : tag};
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

Board Load(Film& film) {
    std::ostringstream text;
    std::vector<Actor> sprites;
    const auto place = [&](Actor sprite, Cell cell) {
        sprite.Where = cell;
        sprite.Index = sprite.What == Kind::Bang ? 0 : 1; // Bangs begin with the template
        for (const Actor& other : sprites) sprite.Index += other.What == sprite.What ? 1 : 0;
        sprites.push_back(sprite);
        text << KindText(sprite.What) << " " << (cell.Row() - 1) * 360 << " "
             << (cell.Col() - 1) * 360;
        text << (sprite.Tag.empty() ? "" : " ") << sprite.Tag << "\n";
    };
    const std::string& marks = film.Frames[0];
    for (const Actor& actor : film.Cast) {
        for (std::size_t i = 0; i < marks.size(); ++i) {
            if (marks[i] == actor.Mark) place(actor, film.CellAt(i));
        }
    }
    if (text.view().find("you ") > text.view().size()) place(ReadActor("@"), {299, 299});
    if (text.view().find("gem1type ") > text.view().size()) place(ReadActor("*"), {300, 300});

    const std::uint32_t seed = SeedOf(film.Words["draw"]);
    Board board = LoadMap(text.str(), seed);
    const auto hide = [&](char how) {
        for (const Actor& sprite : sprites) {
            if (sprite.How == how) board.Pools[sprite.What].Hide(sprite.Index);
        }
    };
    for (const Actor& sprite : sprites) {
        if (sprite.What != Kind::Bang) continue; // no map can place it
        board.SpawnObject(Kind::Bang, static_cast<float>(sprite.Where.Col() - 1) * Pitch,
                          static_cast<float>(sprite.Where.Row() - 1) * Pitch, Heading::Down);
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

void Play(Film& film, Routine routine) {
    SCOPED_TRACE(film.Title);
    Board board = Load(film);
    board.TickCount = To16(std::stoi(film.Words["tick"]) - 1);
    HeldKeys held;
    for (const char& way : film.Words["held"]) held.Set(*HeadingNamed({&way, 1}), true);
    std::istringstream keys(film.Words["key"]);
    std::istringstream heads(film.Words["heads"]);
    for (std::size_t frame = 1; frame < film.Frames.size(); ++frame) {
        std::string acts;
        if (!std::getline(keys, acts, ',')) acts = routine == nullptr ? "." : "!";
        for (const char& act : acts) {
            if (act == '!') (board.*routine)();
            if (act == '.') board.Period("", held);
            if (act != '!' && act != '.') board.MoveYou({&act, 1});
        }
        std::string shown = film.Frames[frame];
        for (std::size_t i = 0; i < shown.size(); ++i) {
            if (shown[i] != '\n') shown[i] = LookOf(board, film.CellAt(i));
        }
        const bool last = frame + 1 == film.Frames.size();
        std::string expected = film.Frames[frame] + (last ? film.Words["ends"] : "runs");
        shown += Ends.at(static_cast<std::size_t>(board.Result));
        if (std::string headings; std::getline(heads, headings, ',')) {
            expected += " " + headings;
            shown += " " + HeadsOf(board);
        }
        EXPECT_EQ(expected, shown) << "in frame " << frame + 1;
    }
    const std::string& ready = film.Words["ready"];
    EXPECT_TRUE(ready.empty() || ready == (board.MoveReady ? "yes" : "no"));
}

/// The words behind the title's bar, then the looks that they do not name.
void ReadCast(Film& film) {
    std::istringstream words(film.Title.substr(std::min(film.Title.find('|'), film.Title.size())));
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
    std::istringstream lines{std::string(films) + "\n="};
    Film film;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string word;
        for (std::size_t frame = 0; words >> word && word != "=" && word != "|"; ++frame) {
            film.Frames.resize(std::max(film.Frames.size(), frame + 1));
            film.Frames[frame] += word + "\n";
        }
        if (word == "|") film.Title += line;
        if (word != "=") continue;
        if (!film.Frames.empty()) {
            ReadCast(film);
            Play(film, routine);
        }
        film = {};
        film.Title = line;
    }
}

} // namespace tumbledeep
