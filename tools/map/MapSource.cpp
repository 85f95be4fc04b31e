// Which files are read as pictures, and what is said when one can't be read or written.
#include "map/MapSource.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "formats/TextPicture.h"

#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <utility>

namespace tumbledeep {

bool HasExtension(const std::filesystem::path& file, std::string_view extension) {
    return SameButCase(file.extension().string(), extension);
}

std::string BytesOf(const std::filesystem::path& file, Sources sources) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        throw std::runtime_error(file.string() + ": this is a folder");
    }
    try {
        return ReadFile(file, sources);
    } catch (const Failure& failure) {
        throw std::runtime_error(file.string() + (failure.Number == Failure::FileNotFound
                                                      ? ": there is no such file"
                                                      : ": the file can't be read"));
    }
}

namespace {

/// A line "board" alone stands in every picture and in no map.
bool LooksLikePicture(const std::vector<Record>& lines) {
    return std::ranges::any_of(lines, [](const Record& line) { return line.Text == "board"; });
}

} // namespace

MapSource ReadMapSource(const std::string& name) {
    if (HasExtension(name, ".TBL")) throw std::runtime_error(name + ": this is a list and no map");
    MapSource source{name, !HasExtension(name, ".TBM"), BytesOf(name), {}, {}, 0};
    if (source.Bytes.find('\0') != std::string::npos) {
        throw std::runtime_error(name + ": this is no plain text; save it as ASCII or UTF-8");
    }
    if (source.IsPicture) {
        TextPicture picture = ReadPicture(name, source.Bytes);
        source.Lines = std::move(picture.Map);
        source.Meanings = std::move(picture.Meanings);
        source.FirstRow = picture.FirstRow;
        return source;
    }
    source.Lines = ReadRecords(source.Bytes);
    if (LooksLikePicture(source.Lines)) {
        throw std::runtime_error(name +
                                 ": this is a text picture; give it a name that does not end "
                                 "in .TBM");
    }
    return source;
}

void WriteTo(const std::string& name, const std::string& bytes) {
    if (name.empty()) {
        std::cout << bytes;
        return;
    }
    // What lies behind a link of the author's is meant.
    std::error_code error;
    const std::filesystem::path target = std::filesystem::weakly_canonical(name, error);
    if (!ReplaceFile(error ? std::filesystem::path(name) : target, bytes)) {
        throw std::runtime_error(name + ": the file can't be written");
    }
}

} // namespace tumbledeep
