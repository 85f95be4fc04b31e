// Where scripts and their maps lie.
#include "desktop/ScriptFiles.h"

#include "base/Failure.h"
#include "host/HostFiles.h"
#include "host/HostPaths.h"
#include "windows/frmMain.h"

#include <array>
#include <iostream>
#include <stdexcept>

namespace tumbledeep {

namespace fs = std::filesystem;

RecordingFile::RecordingFile(const fs::path& path) : name(path) {
    std::error_code error;
    if (fs::exists(path, error)) {
        throw std::runtime_error(path.string() + ": there is such a file already, and a recording "
                                                 "does not replace it");
    }
    file.open(path, std::ios::binary);
    if (!file) throw std::runtime_error(path.string() + ": the recording can't be written");
}

void RecordingFile::Write(const std::string& lines) {
    if (!file) return;
    file << lines << std::flush;
    if (!file) std::cerr << "tumbledeep: " << name.string() << ": the recording can't be written\n";
}

ReplayFile ReadReplay(const fs::path& script, const std::string& map, const GameFolders& folders) {
    ReplayFile replay;
    std::string text;
    try {
        text = ReadFile(script, Sources::Any);
    } catch (const Failure&) {
        throw std::runtime_error(script.string() + ": the script can't be read");
    }
    replay.Lines = ReadScript(script.string(), text, &IsMenuHandler);
    replay.Head = ReadRecordingHead(text);
    const std::string name = map.empty() ? replay.Head.Map : map;
    if (name.empty()) {
        throw std::runtime_error(script.string() +
                                 ": the script does not say for which map it is; name the map "
                                 "behind it");
    }
    const fs::path above = script.parent_path().parent_path();
    for (const fs::path& folder : {folders.Own, fs::current_path(), script.parent_path(), above}) {
        const fs::path file = folders.Find(folder / name);
        std::error_code error;
        if (!fs::is_regular_file(file, error)) continue;
        if (replay.Head.Checksum && *replay.Head.Checksum != ChecksumOf(ReadFile(file))) {
            std::cerr << "tumbledeep: " << file.string() << " has changed since " << script.string()
                      << " was recorded\n";
        }
        replay.Map = ProgramPath(file);
        return replay;
    }
    throw std::runtime_error(script.string() + ": its map " + name + " can't be found");
}

} // namespace tumbledeep
