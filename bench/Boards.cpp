// How the texts of maps are put together, a line for each object. Maps that ship are read from the
// folder that the build names.
#include "Boards.h"

#include "host/HostFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace tumbledeep {

std::string LineOf(const Object& object, float left, float top) {
    if (object.Keyword.empty()) return "";
    return object.Keyword + ' ' + std::to_string(top) + ' ' + std::to_string(left) +
           (object.Tag.empty() ? "" : ' ' + object.Tag) + '\n';
}

namespace {

std::string Line(const Object& object, int col, int row) {
    return LineOf(object, static_cast<float>(col) * Pitch, static_cast<float>(row) * Pitch);
}

} // namespace

std::string MapOf(int width, int height, const std::function<Object(int col, int row)>& inside) {
    std::string map;
    for (int row = 0; row < height; ++row) {
        for (int col = 0; col < width; ++col) {
            const bool wall = row == 0 || col == 0 || row == height - 1 || col == width - 1;
            map += Line(wall ? Object{"harddirt", ""} : inside(col, row), col, row);
        }
    }
    return map;
}

std::string MapOf90000Lines() {
    static constexpr std::array<const char*, 4> kinds{"dirt", "harddirt", "gem1type", "roundrock"};
    std::string map;
    for (int i = 0; i < 90'000; ++i) {
        map += Line({kinds[static_cast<std::size_t>(i % 4)], ""}, i % 300, i / 300);
    }
    return map;
}

std::string ShippedMap(const std::string& file) {
    return ReadFile(std::filesystem::path(TUMBLEDEEP_LEVELS) / file);
}

std::vector<std::string> ShippedMaps() {
    std::vector<std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(TUMBLEDEEP_LEVELS)) {
        if (file.path().extension() == ".TBM") files.push_back(file.path().filename().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace tumbledeep
