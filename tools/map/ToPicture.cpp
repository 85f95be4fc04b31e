// Not there yet.
#include "map/Commands.h"

namespace tumbledeep {

int ToPicture(Words /*words*/) { throw std::runtime_error("ToPicture is not there yet"); }

} // namespace tumbledeep
