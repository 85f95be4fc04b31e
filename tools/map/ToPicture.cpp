// The command that makes a text picture of a map. The format is formats/TextPicture.h's.
#include "formats/TextPicture.h"
#include "map/Commands.h"
#include "map/MapCall.h"
#include "map/MapSource.h"

namespace tumbledeep {

int ToPicture(Words words) {
    const MapCall call = ReadMapCall(words, {"-o"});
    WriteTo(call.Output, WritePicture(call.Map, ReadMapSource(call.Map).Lines));
    return 0;
}

} // namespace tumbledeep
