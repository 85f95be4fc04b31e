// The folder is made where TMPDIR says.
#include "Sandbox.h"

#include <fstream>
#include <random>

namespace tumbledeep {

namespace fs = std::filesystem;

Sandbox::Sandbox()
    : Path(fs::temp_directory_path() /
           ("tumbledeep-fuzz-" + std::to_string(std::random_device{}()))) {
    fs::create_directories(Path);
}

Sandbox::~Sandbox() {
    std::error_code error;
    fs::remove_all(Path, error);
}

void Sandbox::Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(Path / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void Sandbox::Clear() const {
    for (const auto& entry : fs::directory_iterator(Path)) fs::remove_all(entry.path());
}

bool StaysInside(std::string_view programPath) {
    return programPath.find(':') == std::string_view::npos &&
           programPath.find("..") == std::string_view::npos && !programPath.starts_with('/') &&
           !programPath.starts_with('\\');
}

} // namespace tumbledeep
