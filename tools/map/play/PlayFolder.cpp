// How the folder is filled. Links let an edit show at the next try, and let a win lead on.
#include "map/play/PlayFolder.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "formats/MapList.h"
#include "formats/ProgramPath.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "host/SettingsFile.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <stdlib.h> // mkdtemp is POSIX

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

fs::path MakeFolder() {
    std::error_code error;
    const fs::path place = fs::temp_directory_path(error);
    if (error) throw std::runtime_error("there is no folder for temporary files; see TMPDIR");
    std::string path = (fs::absolute(place) / "tumbledeep-XXXXXX").string();
    if (mkdtemp(path.data()) != nullptr) return path;
    throw std::runtime_error(place.string() + ": no temporary folder can be made there");
}

/// The name, without an extension, under which the game can find a file of that name again after it
/// has been through settings, lists and paths: "\" and a drive's colon lead elsewhere, blanks in
/// front and a second extension are taken off there, and a list can't hold all quotes.
std::string LevelName(const fs::path& map) {
    std::string level = map.stem().string();
    while (IsMapName(level)) level = WithoutExtension(level);
    std::ranges::replace_if(
        level, [](char c) { return c == '\\' || c == ':' || c == '\n' || c == '\r'; }, '-');
    level.erase(0, level.find_first_not_of(' '));
    if (!CanWrite(level)) std::ranges::replace(level, '"', '\'');
    return level.empty() ? "map" : level;
}

bool Lists(const fs::path& list, const std::string& level) {
    try {
        const auto names = ReadMapList(ReadFile(list));
        return std::ranges::find(names, level, &Record::Text) != names.end();
    } catch (const Failure&) {
        return false;
    }
}

} // namespace

PlayFolder::PlayFolder() : Path(MakeFolder()) {}

PlayFolder::~PlayFolder() {
    std::error_code error;
    fs::remove_all(Path, error);
}

std::string PlayFolder::Fill(const MapSource& map, const fs::path& gameFolder) {
    const fs::path file = fs::absolute(map.Name);
    const std::string level = LevelName(file);
    std::string name = level + ".TBM";
    if (map.IsPicture) {
        std::error_code error;
        drawn = file;
        drawnAt = fs::last_write_time(file, error);
        mapFile = Path / name;
        MakeMap(map);
    } else {
        Link(name, file);
    }
    LinkNeighbours(file);
    WriteSettings(name, ListWith(level), gameFolder);
    return name;
}

void PlayFolder::MakeMap(const MapSource& picture) const {
    WriteTo(mapFile, WriteRecords(picture.Lines));
}

void PlayFolder::Refresh() {
    if (drawn.empty()) return;
    std::error_code error;
    const auto savedAt = fs::last_write_time(drawn, error);
    // Some editors take the file away for a moment when they save it.
    if (error || savedAt == drawnAt) return;
    drawnAt = savedAt;
    MakeMap(ReadMapSource(drawn));
}

/// The first that is linked under a name stays.
void PlayFolder::Link(const std::string& name, const fs::path& target) const {
    std::error_code error;
    fs::create_symlink(target, Path / name, error);
}

void PlayFolder::LinkNeighbours(const fs::path& map) const {
    std::error_code error;
    for (fs::directory_iterator entry(map.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        const fs::path& file = entry->path();
        const bool counts = HasExtension(file, ".TBM") || HasExtension(file, ".TBL");
        if (counts && file.filename() != map.filename()) Link(file.filename().string(), file);
    }
}

/// The list that leads on from a map, without its extension: Default if it names the map, or else
/// the first that does. Without any a list is made that ends with it.
std::string PlayFolder::ListWith(const std::string& level) const {
    std::set<std::string> lists;
    for (const auto& entry : fs::directory_iterator(Path)) {
        if (HasExtension(entry.path(), ".TBL")) lists.insert(entry.path().stem().string());
    }
    std::string made = "Default";
    if (Lists(FindFile(Path / "Default.TBL"), level)) return made;
    for (const std::string& list : lists) {
        if (Lists(FindFile(Path / (list + ".TBL")), level)) return list;
    }
    while (lists.contains(made)) made += "-";
    WriteTo(Path / (made + ".TBL"), WriteRecords({{level}}));
    return made;
}

void PlayFolder::WriteSettings(const std::string& name, const std::string& list,
                               const fs::path& gameFolder) const {
    const std::string settings = ProgramPath(Path / "Tumbledeep.ini");
    const std::string players = ProgramPath(gameFolder / "Tumbledeep.ini");
    const std::string move = ReadProfile("AutoMove", "Move", players);
    // Without the two keys of the view the game would ask for them.
    WriteProfile("AutoMove", "MOVE", move.empty() ? "True" : move, settings);
    WriteProfile("AutoMove", "MODE", move.empty() ? "2" : ReadProfile("AutoMove", "Mode", players),
                 settings);
    WriteProfile("Level", "LOAD", name, settings);
    WriteProfile("Level", "STARTMAP", "True", settings);
    WriteProfile("Level", "MAPLIST", list, settings);
}

} // namespace tumbledeep
