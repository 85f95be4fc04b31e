// How a text is cut into records, and how lines and columns are counted on the way. The rules of
// records are told in the header.
#include "formats/FieldInput.h"

#include "base/Text.h"

#include <utility>

namespace tumbledeep {

FieldInput::FieldInput(std::string bytes) : text(std::move(bytes)) {
    if (text.starts_with(ByteOrderMark)) position = lineStart = counted = ByteOrderMark.size();
}

Record FieldInput::Next() {
    position = std::min(text.find_first_not_of(' ', position), text.size());
    CountLines();
    Record record{"", line, static_cast<int>(position - lineStart) + 1};
    if (!AtEnd() && text[position] == '"') {
        ++position;
        ++record.Column;
        record.Text = Until("\"");
        Until(",\r\n");
    } else {
        record.Text = Until(",\r\n");
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

void FieldInput::CountLines() {
    for (; counted < position; ++counted) {
        const bool pair =
            text[counted] == '\r' && counted + 1 < text.size() && text[counted + 1] == '\n';
        if (pair || (text[counted] != '\r' && text[counted] != '\n')) continue;
        ++line;
        lineStart = counted + 1;
    }
}

} // namespace tumbledeep
