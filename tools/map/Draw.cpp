// Not there yet.
#include "map/Commands.h"

namespace tumbledeep {

int Draw(Words /*words*/) { throw std::runtime_error("Draw is not there yet"); }

} // namespace tumbledeep
