// A folder for the targets that need files of the host: made at a process's start where there is
// room for what lasts a moment, and gone at its end.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tumbledeep {

class Sandbox {
  public:
    Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;
    ~Sandbox();

    const std::filesystem::path Path;

    void Write(const std::string& name, std::string_view bytes) const;
    /// Takes all files out.
    void Clear() const;
};

/// Whether a path of the program stays in the folder that it begins at: no drive, no root, no "..".
/// Others could name files of the host that never end, and are not played.
bool StaysInside(std::string_view programPath);

} // namespace tumbledeep
