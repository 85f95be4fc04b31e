// The command that makes a map of a text picture. Its format is formats/TextPicture.h's.
#include "map/Commands.h"
#include "map/MapCall.h"
#include "map/MapSource.h"

namespace tumbledeep {

int FromPicture(Words words) {
    const MapCall call = ReadMapCall(words, {"-o"});
    if (!call.Output.empty() && !HasExtension(call.Output, ".TBM")) {
        throw CallFault("a map's name ends in .TBM, not as " + call.Output);
    }
    if (HasExtension(call.Map, ".TBM")) throw CallFault(call.Map + " is a map already");
    WriteTo(call.Output, WriteRecords(ReadMapSource(call.Map).Lines));
    return 0;
}

} // namespace tumbledeep
