// Not there yet.
#include "map/Commands.h"

namespace tumbledeep {

int Info(Words /*words*/) { throw std::runtime_error("Info is not there yet"); }

} // namespace tumbledeep
