// The comments, written and read.
#include "formats/RecordingHead.h"

#include "base/Hash.h"

#include <array>
#include <charconv>

namespace tumbledeep {

namespace {

constexpr std::string_view MapMark = "# map ";
constexpr std::string_view ChecksumMark = "# checksum ";
constexpr std::string_view SeedMark = "# seed ";
constexpr std::string_view StopMark = "# stop ";
constexpr int Decimal = 10;
constexpr int Hexadecimal = 16;
constexpr std::size_t ChecksumDigits = 16;

/// All of the text as a number of a base; none if it is anything else.
template <class Number> std::optional<Number> NumberFrom(std::string_view text, int base) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, base);
    if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
    return number;
}

} // namespace

std::uint64_t ChecksumOf(std::string_view bytes) {
    Hash hash;
    hash.Add(bytes);
    return hash.Value();
}

std::string LinesOf(const RecordingHead& head) {
    std::string lines;
    const auto add = [&lines](std::string_view mark, const std::string& value) {
        lines += std::string(mark).append(value).append("\n");
    };
    if (!head.Map.empty()) add(MapMark, head.Map);
    if (head.Checksum) {
        std::array<char, ChecksumDigits> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), *head.Checksum, Hexadecimal);
        std::string text(digits.begin(), end.ptr);
        add(ChecksumMark, text.insert(0, ChecksumDigits - text.size(), '0'));
    }
    if (head.Seed) add(SeedMark, std::to_string(*head.Seed));
    return lines;
}

RecordingHead ReadRecordingHead(std::string_view script) {
    RecordingHead head;
    while (!script.empty()) {
        const std::size_t feed = script.find('\n');
        std::string_view line = script.substr(0, feed);
        script.remove_prefix(feed == std::string_view::npos ? script.size() : feed + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (head.Map.empty() && line.starts_with(MapMark)) {
            head.Map = line.substr(MapMark.size());
        } else if (!head.Checksum && line.starts_with(ChecksumMark)) {
            head.Checksum =
                NumberFrom<std::uint64_t>(line.substr(ChecksumMark.size()), Hexadecimal);
        } else if (!head.Seed && line.starts_with(SeedMark)) {
            head.Seed = NumberFrom<std::uint32_t>(line.substr(SeedMark.size()), Decimal);
        } else if (!head.Stop && line.starts_with(StopMark)) {
            line.remove_prefix(StopMark.size());
            head.Stop = NumberFrom<std::int64_t>(line.substr(0, line.find(' ')), Decimal);
        }
    }
    return head;
}

} // namespace tumbledeep
