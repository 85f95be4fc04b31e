// Where the records of a file end and what is lost there: commas, quotes, texts behind quotes. The
// records themselves are formats/FieldInput.h's.
#pragma once

#include "formats/FieldInput.h"
#include "map/check/Finding.h"

#include <string_view>
#include <vector>

namespace tumbledeep {

struct RecordEnd {
    bool ByComma = false;     ///< not by a line end or the file's end
    bool InQuotes = false;    ///< the record stands in quotes
    bool Open = false;        ///< its closing quote is missing
    int Line = 1;             ///< of the closing quote, or of the record
    std::string_view Dropped; ///< what stands behind the closing quote, without blanks round it
};

/// The ends of all records that were read from these bytes. Good as long as the bytes are.
std::vector<RecordEnd> EndsOf(std::string_view bytes, const std::vector<Record>& records);

/// Quotes that are never closed, and texts that are dropped behind quotes.
Findings CheckQuotes(const std::vector<Record>& records, const std::vector<RecordEnd>& ends);

} // namespace tumbledeep
