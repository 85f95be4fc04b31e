// Not there yet.
#include "map/Commands.h"

namespace tumbledeep {

int PlayMap(Words /*words*/) { throw std::runtime_error("PlayMap is not there yet"); }

} // namespace tumbledeep
