// The settings of a benchmark's game lie in the system's directory for temporary files.
#include "Boards.h"

#include "platform/HostFiles.h"

#include <filesystem>

namespace tumbledeep {

namespace {

ScriptedRun RunInTemporaryDirectory() {
    const auto directory = std::filesystem::temp_directory_path() / "tumbledeep-bench";
    std::filesystem::create_directories(directory);
    return {ProgramPath(directory), "", 1};
}

std::string Line(const Object& object, int col, int row) {
    if (object.Keyword.empty()) return "";
    return object.Keyword + ' ' + std::to_string(row * 360) + ' ' + std::to_string(col * 360) +
           (object.Tag.empty() ? "" : ' ' + object.Tag) + '\n';
}

} // namespace

Bench::Bench(const std::string& map) : Services(RunInTemporaryDirectory(), Answers, Lines) {
    Game.Form.Width = 15360;
    Game.Form.Height = 11520;
    Game.MapFile = FieldInput(map);
    Game.LoadNewMap();
}

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

} // namespace tumbledeep
