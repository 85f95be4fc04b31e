// A folder in which the game plays a map that lies anywhere: the maps and lists beside it are there
// by links, the settings are its own. Starting the game is PlayMap.cpp's.
#pragma once

#include "map/MapSource.h"

#include <filesystem>
#include <string>

namespace tumbledeep {

/// A temporary folder, made empty and gone with this.
class PlayFolder {
  public:
    /// Throws std::runtime_error if it can't be made.
    PlayFolder();
    PlayFolder(const PlayFolder&) = delete;
    PlayFolder& operator=(const PlayFolder&) = delete;
    ~PlayFolder();

    const std::filesystem::path Path;

    /// Fills the folder for a map or a text picture, with the view that the settings file beside
    /// the game, if there is one, has. Returns the name by which the game knows the map.
    std::string Fill(const MapSource& map, const std::filesystem::path& gameFolder);

    /// Makes the map anew if its text picture has been saved since. When that can't be read the map
    /// stays, and the fault is thrown as ReadMapSource does, once.
    void Refresh();

  private:
    void MakeMap(const MapSource& picture) const;
    void Link(const std::string& name, const std::filesystem::path& target) const;
    void LinkNeighbours(const std::filesystem::path& map) const;
    std::string ListWith(const std::string& level) const;
    void WriteSettings(const std::string& name, const std::string& list,
                       const std::filesystem::path& gameFolder) const;

    std::filesystem::path drawn; ///< the text picture; empty for a map
    std::filesystem::file_time_type drawnAt;
    std::filesystem::path mapFile; ///< the map that is made of it
};

} // namespace tumbledeep
