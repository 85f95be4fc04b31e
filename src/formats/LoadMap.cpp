// Makes sprites of a map's lines. It knows nothing of cells: positions are copied as they stand,
// and the board's set-up fills the grid from the sprites afterwards.
#include "formats/LoadMap.h"

#include "base/Failure.h"

#include <utility>

namespace tumbledeep {

namespace {

void ThrowFault(const MapLine& line) {
    if (line.Fault) throw Failure{line.Fault->Number};
}

} // namespace

void PutOnBoard(Board& board, const MapLine& line) {
    if (line.What != MapLine::Is::Object) return;
    if (line.Which == Kind::You) {
        board.You.Top = line.Top.value_or(board.You.Top);
        board.You.Left = line.Left.value_or(board.You.Left);
        ThrowFault(line);
        return board.YouStart();
    }
    Pool& pool = board.Pools[line.Which];
    if (pool.Full()) throw Failure{Failure::Overflow};
    const int index = pool.Add();
    pool.Put(index, line.Left.value_or(pool[index].Left), line.Top.value_or(pool[index].Top));
    ThrowFault(line);
    board.DrawPicture(line.Which, index);
    pool.Show(index);
    if (HasTag(line.Which)) pool.SetTag(index, line.Text);
}

Board LoadMap(std::string bytes, std::uint32_t seed) {
    return LoadMap(ReadRecords(std::move(bytes)), seed);
}

Board LoadMap(const std::vector<Record>& map, std::uint32_t seed) {
    Board board;
    board.Randomize(seed);
    for (const Record& record : map) PutOnBoard(board, ReadMapLine(record));
    board.ResetArea();
    board.ResetStart(seed);
    return board;
}

} // namespace tumbledeep
