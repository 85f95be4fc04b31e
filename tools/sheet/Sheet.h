// The whole catalogue on one sheet: a row to a kind, a column to a heading or member.
#pragma once

#include "Image.h"

namespace tumbledeep {

Image DrawSheet();

} // namespace tumbledeep
