// How a text is cut into records, and how lines and columns are counted on the way. The rules of
// records are told in the header.
#include "formats/FieldInput.h"

#include "base/Text.h"

#include <utility>

namespace tumbledeep {

namespace {

constexpr bool EndsLine(char c) { return c == '\r' || c == '\n'; }

bool TakesQuotes(std::string_view text) {
    return text.starts_with(' ') || text.starts_with('"') ||
           text.find_first_of(",\r\n") != std::string_view::npos;
}

} // namespace

FieldInput::FieldInput(std::string bytes) : text(std::move(bytes)) {
    if (text.starts_with(ByteOrderMark)) position = lineStart = ByteOrderMark.size();
}

double FieldInput::Share() const {
    return text.empty() ? 1 : static_cast<double>(position) / static_cast<double>(text.size());
}

Record FieldInput::Next() {
    while (!AtEnd() && text[position] == ' ') ++position;
    Record record{"", line, static_cast<int>(position - lineStart) + 1};
    if (!AtEnd() && text[position] == '"') {
        ++position;
        ++record.Column;
        const std::size_t start = position;
        while (!AtEnd() && text[position] != '"') PassCharacter();
        record.Text.assign(text, start, position - start);
        ToDelimiter();
    } else {
        const std::size_t start = position;
        ToDelimiter();
        record.Text.assign(text, start, position - start);
    }
    if (!AtEnd()) PassCharacter();
    return record;
}

void FieldInput::ToDelimiter() {
    while (!AtEnd() && text[position] != ',' && !EndsLine(text[position])) ++position;
}

void FieldInput::PassCharacter() {
    const char passed = text[position++];
    if (!EndsLine(passed)) return;
    if (passed == '\r' && !AtEnd() && text[position] == '\n') ++position;
    ++line;
    lineStart = position;
}

std::vector<Record> ReadRecords(std::string bytes) {
    std::vector<Record> records;
    for (FieldInput input(std::move(bytes)); !input.AtEnd();) records.push_back(input.Next());
    return records;
}

bool CanWrite(std::string_view text) {
    return !TakesQuotes(text) || text.find('"') == std::string_view::npos;
}

std::string WriteRecords(const std::vector<Record>& records) {
    std::string bytes;
    for (const Record& record : records) {
        const std::string_view quote = TakesQuotes(record.Text) ? "\"" : "";
        bytes.append(quote).append(record.Text).append(quote) += '\n';
    }
    // A mark that is text would be taken for the file's own; blanks in front do not count.
    return bytes.starts_with(ByteOrderMark) ? ' ' + bytes : bytes;
}

} // namespace tumbledeep
