// Marks for a text picture that is being written: what stands on a cell goes in, and a character
// comes out, the same one for the same content.
#pragma once

#include "formats/Legend.h"

#include <optional>

namespace tumbledeep {

class MarkMaker {
  public:
    MarkMaker();

    /// The mark of a cell's content; none when all marks are used up.
    std::optional<char> MarkOf(const MarkedCell& cell);

    /// The marks that need a line in the heading.
    const Legend& Made() const { return made; }

  private:
    std::map<MarkedCell, char> marks;
    Legend made;
    std::string used;
};

} // namespace tumbledeep
