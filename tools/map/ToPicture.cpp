// The command that makes a text picture of a map. The format is formats/TextPicture.h's.
#include "formats/TextPicture.h"
#include "map/Commands.h"
#include "map/LoadSource.h"
#include "map/MapCall.h"
#include "map/MapSource.h"

namespace tumbledeep {

int ToPicture(Words words) {
    const MapCall call = ReadMapCall(words, {"-o"});
    if (HasExtension(call.Output, ".TBM")) {
        throw CallFault("the name of a picture does not end in .TBM, as does " + call.Output);
    }
    const MapSource source = ReadMapSource(call.Map);
    LoadSource(source); // refuses what the game can't load, a pool too full as well
    WriteTo(call.Output, WritePicture(call.Map, source.Lines));
    return 0;
}

} // namespace tumbledeep
