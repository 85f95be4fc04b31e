// The command that makes a map of a text picture. Its format is formats/TextPicture.h's.
#include "map/Commands.h"
#include "map/MapCall.h"
#include "map/MapSource.h"

namespace tumbledeep {

int FromPicture(Words words) {
    const MapCall call = ReadMapCall(words, {"-o"});
    WriteTo(call.Output, WriteRecords(ReadMapSource(call.Map).Lines));
    return 0;
}

} // namespace tumbledeep
