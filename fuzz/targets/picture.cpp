// Any bytes as a text picture or, if they are none, as a map: what can be read is written as a
// picture, and read again to the same objects.
#include "Target.h"

#include "base/Failure.h"
#include "formats/LoadMap.h"
#include "formats/TextPicture.h"

#include <algorithm>
#include <optional>

namespace tumbledeep {

namespace {

/// None for a map that the game does not load to its end.
std::optional<Board> Loaded(const std::vector<Record>& map) {
    try {
        return LoadMap(map, 1);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

/// A text in which all line ends are one sort, as a picture has them.
std::string Plain(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) != "\r\n") plain += text[i] == '\r' ? '\n' : text[i];
    }
    return plain;
}

/// Where each object stands, and its tag: what counts for play.
bool SameObjects(const Board& a, const Board& b) {
    if (a.You.Left != b.You.Left || a.You.Top != b.You.Top) return false;
    return std::ranges::all_of(PoolKinds(), [&a, &b](const KindRow& row) {
        const Pool& one = a.Pools[row.Which];
        const Pool& other = b.Pools[row.Which];
        bool same = one.Count() == other.Count();
        for (int i = 0; same && i < one.Count(); ++i) {
            same = one[i].Left == other[i].Left && one[i].Top == other[i].Top &&
                   one[i].Visible == other[i].Visible &&
                   Plain(one.TagText(i)) == Plain(other.TagText(i));
        }
        return same;
    });
}

/// The titles, in their order.
std::string Titles(const std::vector<Record>& map) {
    std::string titles;
    for (const Record& record : map) {
        const MapLine line = ReadMapLine(record);
        if (line.What == MapLine::Is::Title) titles += Plain(line.Text) + '\f';
    }
    return titles;
}

void ThereAndBack(const std::vector<Record>& map) {
    const std::optional<Board> board = Loaded(map);
    if (!board) return;
    const std::string picture = WritePicture("m", map);
    const std::vector<Record> again =
        ReadRecords(WriteRecords(ReadPicture("written", picture).Map));
    const std::optional<Board> boardAgain = Loaded(again);
    Hold(boardAgain && SameObjects(*board, *boardAgain), "a picture has all objects of its map");
    Hold(Titles(map) == Titles(again), "a picture has the titles of its map");
    Hold(WritePicture("m", again) == picture, "a picture of a picture is the same");
    ReadPicture("looked at", WritePicture("m", map, Turns::LeftOut));
}

} // namespace

void Fuzz(std::string_view bytes) {
    try {
        ThereAndBack(ReadPicture("p", std::string(bytes)).Map);
    } catch (const PictureFault&) {
        ThereAndBack(ReadRecords(std::string(bytes)));
    }
}

} // namespace tumbledeep
