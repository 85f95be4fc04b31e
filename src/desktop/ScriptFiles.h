// The files behind --record and --replay: a script that is being written, and one to be played with
// the map that it is for.
#pragma once

#include "formats/RecordingHead.h"
#include "formats/Script.h"
#include "host/GameFolders.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace tumbledeep {

class RecordingFile {
  public:
    /// Makes the file. Throws std::runtime_error with a text for the player if it is there already
    /// or can't be written.
    explicit RecordingFile(const std::filesystem::path& path);
    /// Writes lines at once, for a program that may end at any moment. When that fails the player
    /// is told once, on standard error.
    void Write(const std::string& lines);

  private:
    std::filesystem::path name;
    std::ofstream file;
};

struct ReplayFile {
    Script Lines;
    RecordingHead Head;
    std::string Map; ///< where it lies, a path of the program
};

/// Reads a script, and looks for its map: the one that the player names, or else that of the
/// script, in the game's folders, the current one, that of the script and the one above it. Throws
/// std::runtime_error with a text for the player.
ReplayFile ReadReplay(const std::filesystem::path& script, const std::string& map,
                      const GameFolders& folders);

} // namespace tumbledeep
