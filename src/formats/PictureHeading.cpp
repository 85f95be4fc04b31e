// The lines of a heading, one function to a sort of line: legend, title and comment, order, and
// lines of the map as they stand.
#include "formats/PictureHeading.h"

#include "base/Number.h"
#include "base/Text.h"
#include "formats/MapText.h"
#include "formats/NearMiss.h"
#include "formats/TextPicture.h"
#include "world/Pool.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tumbledeep {

namespace {

/// Between a mark and what it stands for.
constexpr std::string_view Means = " = ";

constexpr std::string_view Continued = "| ";

/// Behind a key word, all that stands after the one blank.
std::string_view Behind(std::string_view line, std::string_view word) {
    return line.substr(std::min(line.size(), word.size() + 1));
}

std::string InQuotes(std::string_view text) {
    std::string quoted(1, '"');
    return quoted.append(text) += '"';
}

std::string NoObject(std::string_view word) {
    std::string text = "no object of a map is called " + InQuotes(word);
    const std::string_view meant = NearMiss(word, Keywords());
    return meant.empty() ? text : text + "; did you mean " + InQuotes(meant);
}

/// Of a line that a heading can't have: what its author was about, as far as can be guessed.
std::string WhatIsWrong(std::string_view text) {
    static constexpr std::array<std::string_view, 4> words{"board", "title", "rem", "order"};
    const std::string_view word = WordAt(text, 1);
    if (text.front() == ' ') return "a line of the heading begins without blanks";
    if (text.find_first_not_of("#.*O ") == std::string_view::npos) {
        return "this looks like a row of cells; rows stand below a line \"board\"";
    }
    if (KindNamed(word)) {
        return "a line of a map has \"+ \" in front here; if this is a map and no picture, give "
               "it a name that ends in .TBM";
    }
    if (text.find('=') != std::string_view::npos) {
        return "a mark is one character, with \" = \" behind it, as in \"L = movingmineL U\"";
    }
    const std::string_view meant = NearMiss(Trimmed(word, ":"), words);
    if (!meant.empty()) return "did you mean " + InQuotes(meant) + " and not " + InQuotes(word);
    return "a heading has lines such as \"L = movingmineL U\", title, rem, order, + and board, "
           "not " +
           InQuotes(text.substr(0, 60));
}

class Reader {
  public:
    explicit Reader(const std::string& fileName) : name(fileName) {
        for (const KindRow& row : PoolKinds()) {
            heading.Orders[static_cast<std::size_t>(row.Which)] = DefaultOrder(row.Which);
        }
    }

    void Take(const PictureLine& line) {
        at = line.Line;
        const std::string_view text = line.Text;
        const std::string_view word = WordAt(text, 1);
        if (IsMark(text.front()) && text.substr(1).starts_with(Means)) {
            Mark(text.front(), text.substr(1 + Means.size()));
        } else if (word == "title" || word == "rem") {
            heading.Talk.push_back(MapRecord(line.Text, 1));
        } else if (word == "order") {
            Order(Behind(text, word));
        } else if (word.starts_with('+')) {
            Extra(word.substr(1), Behind(text, word), static_cast<int>(word.size()) + 2);
        } else {
            Fail(WhatIsWrong(text));
        }
    }

    PictureHeading heading;

    [[noreturn]] void Fail(const std::string& what) const { ThrowPictureFault(name, at, what); }

  private:
    void Mark(char mark, std::string_view meaning) {
        if (!heading.MarkLines.emplace(mark, at).second) {
            Fail(std::string("the mark ") + mark + " has a meaning already");
        }
        MarkedCell cell;
        while (true) {
            const std::size_t comma = meaning.find(',');
            cell.push_back(Meant(Trimmed(meaning.substr(0, comma))));
            if (comma == std::string_view::npos) break;
            meaning.remove_prefix(comma + 1);
        }
        heading.Marks.insert_or_assign(mark, std::move(cell));
    }

    MarkedObject Meant(std::string_view text) const {
        const std::string_view word = WordAt(text, 1);
        const std::string_view tag = Trimmed(Behind(text, word));
        const auto kind = KindNamed(word);
        if (!kind || *kind == Kind::Bang) Fail(NoObject(word));
        const bool factory = *kind == Kind::Factory;
        if (HasTag(*kind) && !IsPlainTag(tag)) {
            Fail(std::string(word) + (factory ? " needs one recipe without blanks, as 5:roundrock"
                                              : " needs one heading, U, D, L or R"));
        }
        if (!HasTag(*kind) && !tag.empty()) {
            Fail("nothing can stand behind " + std::string(word));
        }
        return {*kind, std::string(tag)};
    }

    void Order(std::string_view text) {
        const std::string_view word = WordAt(text, 1);
        const std::string_view way = Behind(text, word);
        const auto kind = KindNamed(word);
        if (!kind || *kind == Kind::You || (way != "up" && way != "down")) {
            Fail("an order reads \"order roundrock up\" or down");
        }
        heading.Orders[static_cast<std::size_t>(*kind)] =
            way == "up" ? RowOrder::Up : RowOrder::Down;
    }

    void Extra(std::string_view number, std::string_view text, int column) {
        std::optional<int> index;
        if (!number.empty()) {
            const auto read = ReadInteger(number);
            if (!read || *read < 1 || *read >= Pool::Limit) {
                Fail("+ is followed by a number from 1 to " + std::to_string(Pool::Limit - 1) +
                     " or by a blank");
            }
            index = static_cast<int>(*read);
        }
        Record record = MapRecord(std::string(text), column);
        const MapLine line = ReadMapLine(record);
        if (line.Fault) Fail(FaultText(*line.Fault));
        if (line.What == MapLine::Is::Object) {
            heading.Extras.push_back({index, line.Which, std::move(record)});
        } else if (index) {
            Fail("only objects are numbered");
        } else {
            heading.Talk.push_back(std::move(record));
        }
    }

    Record MapRecord(std::string text, int column) const {
        if (!CanWrite(text)) Fail("a map's line can't hold both a quote and a comma");
        return {std::move(text), at, column};
    }

    const std::string& name;
    int at = 1;
};

} // namespace

PictureHeading TakeHeading(const std::string& name, std::deque<PictureLine>& lines) {
    Reader reader(name);
    while (!lines.empty()) {
        PictureLine line = std::move(lines.front());
        lines.pop_front();
        if (Trimmed(line.Text) == "board") {
            reader.heading.BoardLine = line.Line;
            return std::move(reader.heading);
        }
        if (Trimmed(line.Text).empty()) continue;
        for (; !lines.empty() && lines.front().Text.starts_with(Continued); lines.pop_front()) {
            line.Text.append("\n").append(lines.front().Text.substr(Continued.size()));
        }
        reader.Take(line);
    }
    ThrowPictureFault(name, 1, "a picture has a line \"board\", and its rows stand below that");
}

void ThrowPictureFault(const std::string& name, int line, const std::string& what) {
    throw PictureFault(name + ":" + std::to_string(line) + ": " + what);
}

} // namespace tumbledeep
