// The command that makes a map of a text picture. Its format is formats/TextPicture.h's.
#include "map/Commands.h"
#include "map/FileWords.h"
#include "map/MapSource.h"

namespace tumbledeep {

int FromPicture(Words words) {
    const FileWords files = ReadFileWords(words);
    WriteTo(files.Out, WriteRecords(ReadMapSource(files.In).Lines));
    return 0;
}

} // namespace tumbledeep
