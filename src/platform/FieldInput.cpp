// Lines end in CR LF, LF alone or CR alone.
#include "platform/FieldInput.h"

#include <algorithm>
#include <utility>

namespace tumbledeep {

FieldInput::FieldInput(std::string bytes) : text(std::move(bytes)) {
    if (text.starts_with("\xEF\xBB\xBF")) position = 3;
}

std::string FieldInput::Next() {
    position = std::min(text.find_first_not_of(' ', position), text.size());
    std::string record;
    if (!AtEnd() && text[position] == '"') {
        ++position;
        record = Until("\"");
        Until(",\r\n");
    } else {
        record = Until(",\r\n");
    }
    PassDelimiter();
    return record;
}

std::string_view FieldInput::Until(std::string_view stops) {
    const std::size_t start = position;
    position = std::min(text.find_first_of(stops, position), text.size());
    return std::string_view(text).substr(start, position - start);
}

void FieldInput::PassDelimiter() {
    if (AtEnd()) return;
    const bool carriageReturn = text[position] == '\r';
    ++position;
    if (carriageReturn && !AtEnd() && text[position] == '\n') ++position;
}

} // namespace tumbledeep
