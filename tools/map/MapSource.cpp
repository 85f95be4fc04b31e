// Which files are read as pictures, and what is said when one can't be read or written.
#include "map/MapSource.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "formats/TextPicture.h"
#include "host/HostFiles.h"

#include <iostream>
#include <stdexcept>

namespace tumbledeep {

bool HasExtension(const std::filesystem::path& file, std::string_view extension) {
    return SameButCase(file.extension().string(), extension);
}

std::string BytesOf(const std::filesystem::path& file) {
    try {
        return ReadFile(file);
    } catch (const Failure& failure) {
        throw std::runtime_error(file.string() + (failure.Number == Failure::FileNotFound
                                                      ? ": there is no such file"
                                                      : ": the file can't be read"));
    }
}

MapSource ReadMapSource(const std::string& name) {
    MapSource source{name, !HasExtension(name, ".TBM"), BytesOf(name), {}};
    source.Lines = source.IsPicture ? ReadPicture(name, source.Bytes) : ReadRecords(source.Bytes);
    return source;
}

void WriteTo(const std::string& name, const std::string& bytes) {
    if (name.empty()) {
        std::cout << bytes;
    } else if (!ReplaceFile(name, bytes)) {
        throw std::runtime_error(name + ": the file can't be written");
    }
}

} // namespace tumbledeep
