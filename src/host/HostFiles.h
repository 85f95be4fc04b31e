// Files of the host read and replaced whole, and the lock on a folder: the one place below the
// desktop that speaks POSIX. Bytes go in and out; failures to read are thrown as Failure. Which
// file a name stands for is HostPaths.h's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tumbledeep {

/// The most bytes that a file may have to be read. A map with every pool full has under 20 MiB.
inline constexpr std::size_t LargestFile = std::size_t{64} << 20U;

/// What may be read. Whoever opens a pipe waits for its other end, and a device may never end, so
/// the game reads regular files alone; a tool also takes the pipe that its caller names.
enum class Sources { RegularFiles, Any };

/// The bytes of a file. Throws Failure: 53 when there is no such file, 75 when it can't be read, is
/// none of those sources, or has more than LargestFile bytes.
std::string ReadFile(const std::filesystem::path& path, Sources sources = Sources::RegularFiles);

/// Writes a new file beside the old one, makes sure that it is on the disk, and renames it onto the
/// old one, so that the file is whole at every moment. What stands under that very name is
/// replaced, a link too. On failure returns false, with the old file untouched.
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes);

/// Removes the new files that ReplaceFile has left beside a path when the process ended in the
/// midst of it. To be called by who holds the folder's lock, so that none is in use.
void RemoveLeftovers(const std::filesystem::path& path);

/// Whether this process may make files in a folder.
bool IsWritableFolder(const std::filesystem::path& folder);

/// A lock on a folder, held by one process at a time while the object lives. It leaves no file.
class FolderLock {
  public:
    /// Waits for the lock, two seconds at most: a process that was stopped must not stop others.
    explicit FolderLock(const std::filesystem::path& folder);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

    /// False when the wait was in vain, or the file system knows no locks.
    bool Held() const { return held; }

  private:
    int descriptor = -1;
    bool held = false;
};

} // namespace tumbledeep
