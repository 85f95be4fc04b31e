// From a text picture to the lines of a map: the rows give objects by their marks, and the heading
// may give single objects another turn.
#include "base/Text.h"
#include "formats/MapText.h"
#include "formats/PictureHeading.h"
#include "formats/TextPicture.h"
#include "world/Cell.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace tumbledeep {

namespace {

/// Columns and rows that a map can draw.
constexpr std::size_t MostCells = GridSize - 1;

std::deque<PictureLine> LinesOf(std::string_view text) {
    std::deque<PictureLine> lines;
    if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back({std::string(line), static_cast<int>(lines.size()) + 1});
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

/// Takes out of a kind's objects those that extra lines name too.
void TakeNamed(std::vector<Record>& drawn, const std::vector<ExtraLine>& extras) {
    if (extras.empty()) return;
    std::unordered_map<std::string_view, int> named;
    for (const ExtraLine& extra : extras) ++named[extra.Source.Text];
    std::erase_if(drawn, [&named](const Record& record) {
        const auto found = named.find(record.Text);
        return found != named.end() && found->second-- > 0;
    });
}

/// The objects of one kind: those that the rows show, and those that the heading gives.
struct KindLines {
    std::vector<Record> Drawn; ///< in the order of their turns
    std::vector<ExtraLine> Extras;
};

class PictureReader {
  public:
    PictureReader(const std::string& fileName, const std::string& bytes)
        : name(fileName), rows(LinesOf(bytes)) {
        heading = TakeHeading(name, rows);
        while (!rows.empty() && Trimmed(rows.back().Text).empty()) rows.pop_back();
        if (rows.size() > MostCells) Fail(rows[MostCells].Line, "a map has 300 rows at most");
        for (std::size_t row = 0; row < rows.size(); ++row) {
            ReadRow(static_cast<int>(row), rows[row]);
        }
        for (const ExtraLine& extra : heading.Extras) Of(extra.Which).Extras.push_back(extra);
    }

    TextPicture Picture() {
        TextPicture picture{std::move(heading.Talk), {}, heading.BoardLine + 1};
        for (std::size_t i = static_cast<std::size_t>(Kind::You); i < KindCount; ++i) {
            // Rows have come downward, and stay in order from left to right.
            if (heading.Orders[i] == RowOrder::Up) {
                std::ranges::stable_sort(kinds[i].Drawn, std::greater(), &Record::Line);
            }
            Append(picture.Map, kinds[i]);
        }
        for (const Record& record : picture.Map) picture.Meanings.push_back(MeaningOf(record));
        return picture;
    }

  private:
    [[noreturn]] void Fail(int line, const std::string& what) const {
        ThrowPictureFault(name, line, what);
    }

    [[noreturn]] void FailMark(char mark, int col, int line) const {
        std::string what = "column " + std::to_string(col + 1) + ": ";
        if (mark == 'o' || mark == '0') {
            what += "a rock is a capital O";
        } else if (IsMark(mark)) {
            what += mark;
            what += " has no meaning; give it one above the board, such as \"";
            what += mark;
            what += " = movingmineL U\"";
        } else {
            what += "cells are blanks or printable ASCII characters, no tabs";
        }
        Fail(line, what);
    }

    [[noreturn]] void FailTurn(const ExtraLine& extra) const {
        Fail(extra.Source.Line, "the number " + std::to_string(extra.Index.value_or(0)) +
                                    " is given twice, or there are not so many of the kind");
    }

    /// The line that tells what the mark means that a record comes from; 0 for none.
    int MeaningOf(const Record& record) const {
        if (record.Line <= heading.BoardLine) return 0;
        const auto row = static_cast<std::size_t>(record.Line - heading.BoardLine - 1);
        const char mark = rows[row].Text[static_cast<std::size_t>(record.Column) - 1];
        const auto found = heading.MarkLines.find(mark);
        return found == heading.MarkLines.end() ? 0 : found->second;
    }

    KindLines& Of(Kind kind) { return kinds[static_cast<std::size_t>(kind)]; }

    void ReadRow(int row, const PictureLine& line) {
        const std::string_view cells = line.Text;
        if (cells.size() > MostCells) Fail(line.Line, "a map has 300 columns at most");
        for (int col = 0; const char mark : cells) ReadCell(mark, col++, row, line.Line);
    }

    void ReadCell(char mark, int col, int row, int line) {
        if (mark == ' ') return;
        const auto meaning = heading.Marks.find(mark);
        if (meaning == heading.Marks.end()) FailMark(mark, col, line);
        for (const MarkedObject& object : meaning->second) {
            std::vector<Record>& drawn = Of(object.Which).Drawn;
            if (object.Which == Kind::You && !drawn.empty()) {
                Fail(line, "a second player; the first one stands in line " +
                               std::to_string(drawn.front().Line));
            }
            drawn.push_back({ObjectLine(object.Which, static_cast<float>(row) * Pitch,
                                        static_cast<float>(col) * Pitch, object.Tag),
                             line, col + 1});
        }
    }

    /// Adds a kind's lines in turn. An extra line that says what the rows show too is that object,
    /// taken from its place in the row.
    void Append(std::vector<Record>& map, KindLines& lines) const {
        TakeNamed(lines.Drawn, lines.Extras);
        std::vector<ExtraLine>& extras = lines.Extras;
        std::ranges::stable_sort(extras, {}, &ExtraLine::Index);
        const auto numbered = std::ranges::find_if(
            extras, [](const ExtraLine& extra) { return extra.Index.has_value(); });
        for (auto extra = extras.begin(); extra != numbered; ++extra) {
            lines.Drawn.push_back(std::move(extra->Source));
        }
        auto next = lines.Drawn.begin();
        const auto last = lines.Drawn.end();
        int index = 1;
        for (auto extra = numbered; extra != extras.end(); ++extra, ++index) {
            for (; index < extra->Index && next != last; ++index) map.push_back(std::move(*next++));
            if (index != extra->Index) FailTurn(*extra);
            map.push_back(std::move(extra->Source));
        }
        map.insert(map.end(), next, last);
    }

    const std::string& name;
    std::deque<PictureLine> rows;
    PictureHeading heading;
    std::array<KindLines, KindCount> kinds;
};

} // namespace

TextPicture ReadPicture(const std::string& name, const std::string& bytes) {
    return PictureReader(name, bytes).Picture();
}

} // namespace tumbledeep
