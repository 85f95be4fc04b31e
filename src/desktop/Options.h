// The command line of the desktop program: its own options, words that begin with "--", and the
// text that is the game's. What they bring about is RunGame's.
#pragma once

#include "host/GameFolders.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tumbledeep {

/// What the words of the command line ask for.
struct Options {
    bool Help = false;
    bool Version = false;
    bool FullScreen = false;
    std::optional<std::filesystem::path> Directory; ///< of maps, lists and settings
    std::optional<int> Scale;                       ///< device pixels to a game's pixel, 1 to 16
    std::optional<std::filesystem::path> Record;    ///< the script that is written
    std::optional<std::filesystem::path> Replay;    ///< the script that is played
    std::optional<int> Speed;                       ///< of the replay, 1, 2 or 4; none for 1
    std::optional<std::string> Unsaved; ///< settings of a predecessor that could not write them
    std::optional<std::filesystem::path>
        Elsewhere;                ///< a map that a predecessor played, from another folder
    std::optional<int> ShownPipe; ///< file descriptor on which a predecessor waits to be told
    std::string Argument;         ///< the game's command line text, as the player wrote it

    /// The words that make a successor show the game in the same way.
    std::vector<std::string> ForSuccessor() const;
};

/// Reads the words behind the program's name. Throws std::runtime_error with a text for the player
/// when one does not fit.
Options ReadOptions(std::span<char* const> words);

/// The text that --help prints.
const char* UsageText();

/// The name for the recording behind one: "x-2.script" behind "x.script", and so on, with the first
/// number for which there is no file.
std::filesystem::path NextRecording(const std::filesystem::path& file);

/// The game's command line for what the player wrote: a relative map or list is looked for in the
/// game's folders first and then in the current one, and a host's path becomes the program's.
std::string CommandText(const std::string& argument, const GameFolders& folders);

} // namespace tumbledeep
