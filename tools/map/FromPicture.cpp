// Not there yet.
#include "map/Commands.h"

namespace tumbledeep {

int FromPicture(Words /*words*/) { throw std::runtime_error("FromPicture is not there yet"); }

} // namespace tumbledeep
