// The command that makes a text picture of a map. The format is formats/TextPicture.h's.
#include "formats/TextPicture.h"
#include "map/Commands.h"
#include "map/FileWords.h"
#include "map/MapSource.h"

namespace tumbledeep {

int ToPicture(Words words) {
    const FileWords files = ReadFileWords(words);
    WriteTo(files.Out, WritePicture(files.In, ReadMapSource(files.In).Lines));
    return 0;
}

} // namespace tumbledeep
