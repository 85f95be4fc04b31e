// The commands of tumbledeep-map, each in a file or folder of its name. A command gets the words
// behind its own and returns the exit status; what it prints goes to standard output. The table of
// them is in main.cpp.
#pragma once

#include <span>
#include <stdexcept>
#include <string_view>

namespace tumbledeep {

/// A wrong call: main adds the command's usage.
struct CallFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::span<const std::string_view>;

// Each throws CallFault, or std::runtime_error with a line that names the file and what is wrong
// with it; the exit status is then 2.

int Check(Words words);
int Draw(Words words);
int FromPicture(Words words);
int ToPicture(Words words);
int Info(Words words);
int PlayMap(Words words);
int Solve(Words words);
int Measure(Words words);

} // namespace tumbledeep
