// How the texts of maps are put together, a line for each object. Maps that ship are read from the
// folder that the build names.
#include "Boards.h"

#include "host/HostFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace tumbledeep {

namespace {

std::string Line(const Object& object, int col, int row) {
    if (object.Keyword.empty()) return "";
    return object.Keyword + ' ' + std::to_string(row * 360) + ' ' + std::to_string(col * 360) +
           (object.Tag.empty() ? "" : ' ' + object.Tag) + '\n';
}

} // namespace

std::string MapOf(int size, const std::function<Object(int col, int row)>& inside) {
    std::string map;
    for (int row = 0; row < size; ++row) {
        for (int col = 0; col < size; ++col) {
            const bool wall = row == 0 || col == 0 || row == size - 1 || col == size - 1;
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
