// What a recording says of itself in comments: which map it was played on, a checksum of that map,
// and the seed above its lines, how far it went behind them. tumbledeep-trace passes over them.
//     # map First steps.TBM
//     # checksum 0123456789abcdef
//     # seed 1
//     # stop 240 tick 240
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tumbledeep {

struct RecordingHead {
    std::string Map; ///< the name of its file, without folders; "" if it is not told
    std::optional<std::uint64_t> Checksum;
    std::optional<std::uint32_t> Seed;
    std::optional<std::int64_t> Stop; ///< its last step
};

/// The checksum of a map file's bytes.
std::uint64_t ChecksumOf(std::string_view bytes);

/// The comment lines for all that is told above the lines.
std::string LinesOf(const RecordingHead& head);

/// Reads the comments of a script's text; the first of each counts, and what can't be read is not
/// told.
RecordingHead ReadRecordingHead(std::string_view script);

} // namespace tumbledeep
