// The heading of a text picture: its lines go in, and what they say comes out. The rows of cells
// below it are ReadPicture.cpp's.
#pragma once

#include "formats/FieldInput.h"
#include "formats/Legend.h"

#include <array>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tumbledeep {

/// A line of the file, and its number from 1.
struct PictureLine {
    std::string Text;
    int Line;
};

/// A line of the map that the heading gives as it stands.
struct ExtraLine {
    std::optional<int> Index; ///< among the objects of its kind, from 1; none: behind them all
    Kind Which;
    Record Source; ///< the line of the map, and where it stands in the picture
};

struct PictureHeading {
    Legend Marks = DefaultLegend();
    std::map<char, int> MarkLines;            ///< of the marks that the heading gives a meaning
    std::array<RowOrder, KindCount> Orders{}; ///< by kind
    std::vector<Record> Talk;                 ///< titles, comments, and what the game passes over
    std::vector<ExtraLine> Extras;            ///< in their order
    int BoardLine = 0;                        ///< the line `board`
};

/// Takes the heading's lines off the front, the line `board` too. Throws PictureFault, naming the
/// file as `name`.
PictureHeading TakeHeading(const std::string& name, std::deque<PictureLine>& lines);

/// Throws a PictureFault for a line of a file.
[[noreturn]] void ThrowPictureFault(const std::string& name, int line, const std::string& what);

} // namespace tumbledeep
