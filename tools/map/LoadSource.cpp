// Loading, and the search for the line that made it fail.
#include "map/LoadSource.h"

#include "base/Failure.h"
#include "formats/LoadMap.h"

#include <stdexcept>

namespace tumbledeep {

namespace {

/// The seed of all maps that are drawn and studied, so that they come out alike each time.
constexpr std::uint32_t Seed = 1;

/// What the player is told only the number of.
std::string Reason(const MapLine& line, int failure) {
    std::string reason = line.Fault ? FaultText(*line.Fault) : "";
    if (!line.Fault) {
        reason = "no more than " + std::to_string(Pool::Limit - 1) + " objects of a kind fit";
    }
    return reason += " (failure " + std::to_string(failure) + ")";
}

} // namespace

Board LoadSource(const MapSource& source) {
    try {
        return LoadMap(source.Lines, Seed);
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
