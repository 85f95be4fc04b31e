// The words of a command that makes one file of another.
#pragma once

#include "map/Commands.h"

#include <string>

namespace tumbledeep {

struct FileWords {
    std::string In;
    std::string Out; ///< "" for standard output
};

/// Reads "IN [-o OUT]", in any order. Throws CallFault.
FileWords ReadFileWords(Words words);

} // namespace tumbledeep
