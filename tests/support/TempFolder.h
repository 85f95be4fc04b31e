// A folder of a test's own, for tests that need files of the host. It is made empty and is gone
// with its end.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace tumbledeep {

class TempFolder {
  public:
    TempFolder()
        : Path(std::filesystem::path(testing::TempDir()) /
               ("tumbledeep-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(Path);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(Path, error);
    }

    const std::filesystem::path Path;

    void Write(const std::filesystem::path& name, const std::string& bytes) const {
        std::ofstream(Path / name, std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(Path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// How many files and folders it holds.
    std::ptrdiff_t Entries() const {
        return std::distance(std::filesystem::directory_iterator(Path), {});
    }
};

} // namespace tumbledeep
