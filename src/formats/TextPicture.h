// Text pictures: maps drawn with one character to a cell, under a heading that says what the
// characters mean. The picture's bytes go in and the lines of a map come out, or the other way.
// docs/PICTURES.md tells the format; what a line of a map says is MapText.h's.
#pragma once

#include "formats/FieldInput.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace tumbledeep {

/// What does not fit; the text begins with the file's name and the line.
struct PictureFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A text picture that has been read.
struct TextPicture {
    /// The lines of the map, in the map's order. Line and column of each are those of the place in
    /// the picture that it comes from.
    std::vector<Record> Map;
    /// For each of these the line that tells what its mark means; 0 where the heading has none.
    std::vector<int> Meanings;
    int FirstRow; ///< the line of the board's first row
};

/// Throws PictureFault, naming the file as `name`, for the first thing that does not fit.
TextPicture ReadPicture(const std::string& name, const std::string& bytes);

/// Whether a picture says in its heading what gives objects their turns, or is only looked at.
enum class Turns { Kept, LeftOut };

/// The text picture of a map. With its turns ReadPicture makes a map of it that plays the same:
/// each kind has the same objects in the same order. Titles and comments are kept. Throws
/// PictureFault for a map with a line that the game can't read; `name` is the map's.
std::string WritePicture(const std::string& name, const std::vector<Record>& map,
                         Turns turns = Turns::Kept);

} // namespace tumbledeep
