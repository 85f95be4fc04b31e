// The parts of an input, with NUL between them, so that a seed can be read and written by hand.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

/// Takes the text up to the next NUL off the front, and the NUL with it; all of it where none is.
std::string TakeField(std::string_view& bytes);

/// The lines of a text, without their ends; none of an empty text.
std::vector<std::string> Lines(std::string_view text);

} // namespace tumbledeep
