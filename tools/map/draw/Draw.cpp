// Shows a map as it stands at its start: in the terminal by the characters of a text picture, in a
// file by the game's own drawings.
#include "formats/MapText.h"
#include "formats/TextPicture.h"
#include "map/Commands.h"
#include "map/LoadSource.h"
#include "map/MapCall.h"
#include "map/draw/BoardImage.h"

#include <cmath>
#include <iostream>
#include <sstream>

namespace tumbledeep {

namespace {

Image ImageOf(const std::string& name, const Board& board, int scale) {
    try {
        return DrawBoard(board, scale);
    } catch (const std::runtime_error& fault) {
        throw std::runtime_error(name + ": " + fault.what());
    }
}

/// Whether a line of a text picture's heading is only about turns: an order of rows, or an object
/// that the rows show too, or another like it in the same cell.
bool IsAboutTurns(const std::string& line) {
    if (line.starts_with("order ")) return true;
    if (!line.starts_with('+')) return false;
    const MapLine object = ReadMapLine({line.substr(line.find(' ') + 1)});
    const auto isOnGrid = [](float twips) {
        return twips >= 0 && twips < (GridSize - 1) * Pitch && std::fmod(twips, Pitch) == 0;
    };
    return object.Top && object.Left && isOnGrid(*object.Top) && isOnGrid(*object.Left);
}

/// The text picture without what only matters for turns.
void PrintPicture(const std::string& picture) {
    std::istringstream lines(picture);
    bool inHeading = true;
    bool wasEmpty = true;
    for (std::string line; std::getline(lines, line);) {
        if (line == "board") inHeading = false;
        if (inHeading && (IsAboutTurns(line) || (line.empty() && wasEmpty))) continue;
        std::cout << line << '\n';
        wasEmpty = line.empty();
    }
}

} // namespace

int Draw(Words words) {
    const MapCall call = ReadMapCall(words, {"-o", "--scale"});
    if (call.Scale && call.Output.empty()) throw CallFault("--scale needs -o");
    if (!call.Output.empty() && !HasExtension(call.Output, ".png")) {
        throw CallFault("what is drawn is a .png, not as " + call.Output);
    }
    const MapSource source = ReadMapSource(call.Map);
    const Board board = LoadSource(source, ToolSeed);
    if (call.Output.empty()) {
        // An author's own picture has marks that the author knows.
        PrintPicture(source.IsPicture ? source.Bytes : WritePicture(source.Name, source.Lines));
    } else {
        WritePng(ImageOf(source.Name, board, call.Scale.value_or(1)), call.Output);
    }
    return 0;
}

} // namespace tumbledeep
