// Shows a map as it stands at its start: in the terminal by the characters of a text picture, in a
// file by the game's own drawings.
#include "formats/TextPicture.h"
#include "map/BoardImage.h"
#include "map/Commands.h"
#include "map/LoadSource.h"
#include "map/MapCall.h"

#include <iostream>

namespace tumbledeep {

namespace {

Image ImageOf(const MapSource& source, int scale) {
    const Board board = LoadSource(source, ToolSeed);
    try {
        return DrawBoard(board, scale);
    } catch (const std::runtime_error& fault) {
        throw std::runtime_error(source.Name + ": " + fault.what());
    }
}

} // namespace

int Draw(Words words) {
    const MapCall call = ReadMapCall(words, {"-o", "--scale"});
    if (call.Scale && call.Output.empty()) throw CallFault("--scale needs -o");
    const MapSource source = ReadMapSource(call.Map);
    if (call.Output.empty()) {
        std::cout << WritePicture(source.Name, source.Lines);
    } else {
        WritePng(ImageOf(source, call.Scale.value_or(1)), call.Output);
    }
    return 0;
}

} // namespace tumbledeep
