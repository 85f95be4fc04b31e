// How a line of a map is cut into words and numbers. Words stand exactly one blank apart: two
// blanks in a row make an empty word, which is no number.
#include "formats/MapText.h"

#include "base/Failure.h"
#include "base/Number.h"

namespace tumbledeep {

namespace {

constexpr std::string_view Title = "title ";

/// The number that a word of the line is. The first word that is none becomes the line's fault, and
/// nothing is read from then on.
std::optional<float> TakeNumber(MapLine& line, const Record& record, std::string_view word) {
    if (line.Fault) return std::nullopt;
    const NumberPrefix number = ReadNumber(word);
    const bool whole = IsWhole(number, word);
    if (whole && !number.TooLarge) return static_cast<float>(number.Value);
    const auto inText = word.data() == nullptr
                            ? record.Text.size()
                            : static_cast<std::size_t>(word.data() - record.Text.data());
    line.Fault = MapFault{whole ? Failure::Overflow : Failure::TypeMismatch, std::string(word),
                          record.Column + static_cast<int>(inText)};
    return std::nullopt;
}

} // namespace

MapLine ReadMapLine(const Record& record) {
    const std::string_view text = record.Text;
    MapLine line;
    line.Line = record.Line;
    const std::string_view first = WordAt(text, 1);
    if (first == "title") {
        if (text.size() <= Title.size()) return line;
        line.What = MapLine::Is::Title;
        line.Text = text.substr(Title.size());
        return line;
    }
    const auto kind = KindNamed(first);
    if (!kind || *kind == Kind::Bang) return line;
    line.What = MapLine::Is::Object;
    line.Which = *kind;
    const std::string_view second = WordAt(text, first.size() + 2);
    const std::string_view last = LastWord(text);
    // In a line with a tag the second number is the third word, in others the last word, whatever
    // stands in between; tests/formats/MapTextTest.cpp pins it.
    const bool tagged = HasTag(*kind);
    line.Top = TakeNumber(line, record, second);
    line.Left =
        TakeNumber(line, record, tagged ? WordAt(text, first.size() + second.size() + 3) : last);
    if (tagged) line.Text = last;
    return line;
}

std::string FaultText(const MapFault& fault) {
    if (fault.Word.empty()) return "a number is missing, or two blanks follow one another";
    std::string text(1, '"');
    text.append(fault.Word) += '"';
    return text += fault.Number == Failure::Overflow ? " is too large a number" : " is no number";
}

std::string ObjectLine(Kind kind, float top, float left, std::string_view tag) {
    std::string line(KindText(kind));
    line.append(" ").append(FixedText(top)).append(" ").append(FixedText(left));
    if (HasTag(kind)) line.append(" ").append(tag);
    return line;
}

std::string_view WordAt(std::string_view text, std::size_t start) {
    if (start > text.size()) return {};
    const std::string_view rest = text.substr(start - 1);
    return rest.substr(0, rest.find(' '));
}

std::string_view LastWord(std::string_view text) { return text.substr(text.rfind(' ') + 1); }

} // namespace tumbledeep
