// Shows a map as it stands at its start: in the terminal by the characters of a text picture, in a
// file by the game's own drawings.
#include "formats/TextPicture.h"
#include "map/Commands.h"
#include "map/LoadSource.h"
#include "map/MapCall.h"
#include "map/draw/BoardImage.h"

#include <iostream>

namespace tumbledeep {

namespace {

Image ImageOf(const std::string& name, const Board& board, int scale) {
    try {
        return DrawBoard(board, scale);
    } catch (const std::runtime_error& fault) {
        throw std::runtime_error(name + ": " + fault.what());
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
    const Board board = LoadSource(source);
    if (call.Output.empty()) {
        // An author's own picture has marks that the author knows.
        std::cout << (source.IsPicture ? source.Bytes
                                       : WritePicture(source.Name, source.Lines, Turns::LeftOut));
    } else {
        WritePng(ImageOf(source.Name, board, call.Scale.value_or(1)), call.Output);
    }
    return 0;
}

} // namespace tumbledeep
