// A map as its author keeps it: a map file or a text picture goes in, the lines of the map come
// out, each with the place in that file that it comes from.
#pragma once

#include "formats/FieldInput.h"
#include "host/HostFiles.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tumbledeep {

struct MapSource {
    std::string Name; ///< of the file, as the author gave it
    bool IsPicture = false;
    std::string Bytes;         ///< of the file
    std::vector<Record> Lines; ///< of the map
    std::vector<int> Meanings; ///< of a picture: see TextPicture
    int FirstRow = 0;          ///< likewise

    /// The line of the file in which the tag of a line's object is written.
    int TagLine(std::size_t i) const {
        return IsPicture && Meanings[i] != 0 ? Meanings[i] : Lines[i].Line;
    }
};

/// Whether a name has an extension, such as ".TBM", in any case.
bool HasExtension(const std::filesystem::path& file, std::string_view extension);

/// The bytes of a file. Throws std::runtime_error with a text that names it.
std::string BytesOf(const std::filesystem::path& file, Sources sources = Sources::Any);

/// Reads a map, or a text picture if the name does not end in ".TBM" in any case. Throws
/// std::runtime_error with a text that names the file and, in a picture, the line at fault; for
/// what is plainly no map, too.
MapSource ReadMapSource(const std::string& name);

/// Writes a file whole, or to standard output for an empty name. Throws std::runtime_error.
void WriteTo(const std::string& name, const std::string& bytes);

} // namespace tumbledeep
