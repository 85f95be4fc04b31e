// Loading, and the search for the line that made it fail.
#include "map/LoadSource.h"

#include "base/Failure.h"
#include "formats/LoadMap.h"

#include <stdexcept>

namespace tumbledeep {

namespace {

/// What the player is told only the number of.
std::string Reason(const MapLine& line, int failure) {
    std::string reason;
    if (!line.Fault) {
        reason = "no more than " + std::to_string(Pool::Limit - 1) + " objects of a kind fit";
    } else if (line.Fault->Word.empty()) {
        reason = "a number is missing, or two blanks follow one another";
    } else {
        reason = '"' + line.Fault->Word + '"';
        reason += failure == Failure::Overflow ? " is too large a number" : " is no number";
    }
    return reason += " (failure " + std::to_string(failure) + ")";
}

} // namespace

Board LoadSource(const MapSource& source, std::uint32_t seed) {
    try {
        return LoadMap(source.Lines, seed);
    } catch (const Failure& failure) {
        Board board;
        for (const Record& record : source.Lines) {
            const MapLine line = ReadMapLine(record);
            try {
                PutOnBoard(board, line);
            } catch (const Failure&) {
                throw std::runtime_error(source.Name + ":" + std::to_string(line.Line) + ": " +
                                         Reason(line, failure.Number));
            }
        }
        throw;
    }
}

} // namespace tumbledeep
