// Not there yet.
#include "formats/TextPicture.h"

namespace tumbledeep {

std::vector<Record> ReadPicture(const std::string& name, const std::string& /*bytes*/) {
    throw PictureFault(name + ": text pictures can't be read yet");
}

std::string WritePicture(const std::string& name, const std::vector<Record>& /*map*/) {
    throw PictureFault(name + ": text pictures can't be written yet");
}

} // namespace tumbledeep
