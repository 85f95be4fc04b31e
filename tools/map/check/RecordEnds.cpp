// How the end of a record is found again from its line and column, and what is said of quotes.
#include "map/check/RecordEnds.h"

#include "base/Text.h"
#include "world/Kind.h"

#include <algorithm>

namespace tumbledeep {

namespace {

/// Where each line begins. Line ends are CR LF, LF or CR, as for FieldInput.
std::vector<std::size_t> LineStarts(std::string_view bytes) {
    std::vector<std::size_t> starts{bytes.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0};
    for (std::size_t at = bytes.find_first_of("\r\n"); at != std::string_view::npos;
         at = bytes.find_first_of("\r\n", at)) {
        at += bytes.substr(at, 2) == "\r\n" ? 2 : 1;
        starts.push_back(at);
    }
    return starts;
}

RecordEnd EndOf(std::string_view bytes, std::size_t start, const Record& record) {
    RecordEnd end;
    end.InQuotes = start > 0 && bytes[start - 1] == '"';
    std::size_t at = start + record.Text.size();
    if (end.InQuotes) {
        end.Open = at >= bytes.size();
        if (end.Open) return end;
        ++at;
        const std::size_t stop = std::min(bytes.find_first_of(",\r\n", at), bytes.size());
        end.Dropped = Trimmed(bytes.substr(at, stop - at));
        at = stop;
    }
    end.ByComma = at < bytes.size() && bytes[at] == ',';
    return end;
}

} // namespace

std::vector<RecordEnd> EndsOf(std::string_view bytes, const std::vector<Record>& records) {
    const std::vector<std::size_t> starts = LineStarts(bytes);
    std::vector<RecordEnd> ends;
    ends.reserve(records.size());
    for (const Record& record : records) {
        const std::size_t start = starts.at(static_cast<std::size_t>(record.Line) - 1) +
                                  static_cast<std::size_t>(record.Column) - 1;
        ends.push_back(EndOf(bytes, start, record));
        const auto line = std::ranges::upper_bound(starts, start + record.Text.size());
        ends.back().Line = static_cast<int>(line - starts.begin());
    }
    return ends;
}

namespace {

/// A title of several lines, none of which looks as if it were one of the map's own.
bool IsLongTitle(const Record& record) {
    if (!record.Text.starts_with("title ")) return false;
    std::string_view text = record.Text;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        text.remove_prefix(end + 1);
        if (KindNamed(text.substr(0, text.find(' ')))) return false;
    }
    return true;
}

} // namespace

Findings CheckQuotes(const std::vector<Record>& records, const std::vector<RecordEnd>& ends) {
    Findings found;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int line = records[i].Line;
        if (ends[i].Open) {
            found.push_back(Error(line,
                                  {"the quote that opens here is never closed, and all from here "
                                   "to the end of the file is one line"},
                                  {"close it with \" at the end of this line"}));
        } else if (ends[i].Line != line && !IsLongTitle(records[i])) {
            found.push_back(Warning(line,
                                    {"the quote that opens here is closed in line ",
                                     std::to_string(ends[i].Line), ", and all between is one line"},
                                    {"close it with \" at the end of this line"}));
        }
        if (ends[i].Dropped.empty()) continue;
        found.push_back(Warning(ends[i].Line,
                                {Quoted(ends[i].Dropped), " behind the closing quote is dropped"},
                                {"put the closing quote at the end of the line"}));
    }
    return found;
}

} // namespace tumbledeep
