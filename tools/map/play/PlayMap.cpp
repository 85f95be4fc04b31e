// Starts the game that belongs to this program on one map, in a folder of its own, so that no
// settings of the player's change.
#include "map/Commands.h"
#include "map/MapCall.h"
#include "map/MapSource.h"
#include "map/play/GameRun.h"
#include "map/play/PlayFolder.h"

#include "host/GameFolders.h"

#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

/// The game's program file: beside this one, or where both are installed.
fs::path GameFile() {
    const fs::path folder = fs::read_symlink("/proc/self/exe").parent_path();
    for (const fs::path& place : {folder, (folder / "../games").lexically_normal()}) {
        if (fs::is_regular_file(place / "tumbledeep")) return place / "tumbledeep";
    }
    throw std::runtime_error((folder / "tumbledeep").string() +
                             ": the game has to lie beside tumbledeep-map, and is not there");
}

} // namespace

int PlayMap(Words words) {
    const MapCall call = ReadMapCall(words, {"--scale"});
    const fs::path gameFile = GameFile();
    const MapSource map = ReadMapSource(call.Map);
    const HeldSignals signals;
    PlayFolder folder;
    const std::string name = folder.Fill(map, FoldersOf(gameFile).Own);
    std::vector<std::string> game{gameFile, "--dir", folder.Path};
    if (call.Scale) game.insert(game.end(), {"--scale", std::to_string(*call.Scale)});
    // In quotes, since it may begin as an option does.
    game.push_back('"' + name + '"');
    return RunGameToItsEnd(game, signals, [&folder] {
        try {
            folder.Refresh();
        } catch (const std::runtime_error& fault) {
            std::cerr << "tumbledeep-map: " << fault.what() << '\n';
        }
    });
}

} // namespace tumbledeep
