// The road of bytes between files and texts. Every descriptor is closed in the routine that opens
// it, but the lock's, which lives as long as its object.
#include "host/HostFiles.h"

#include "base/Failure.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <optional>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tumbledeep {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::seconds LongestWait{2};
constexpr std::chrono::microseconds BetweenTries{200};
constexpr std::string_view NewExtension = ".new";
constexpr std::string_view TagDigits = "0123456789abcdef";
constexpr std::size_t TagLength = 8;
/// So that tag and extension fit into the 255 bytes of a name.
constexpr std::size_t LongestStem = 200;

/// A file descriptor, closed with the object.
class Descriptor {
  public:
    explicit Descriptor(int open) : number(open) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int operator*() const { return number; }
    bool IsOpen() const { return number >= 0; }
    /// False when the system tells only now that what was written is lost.
    bool Close() {
        const int open = number;
        number = -1;
        return open < 0 || close(open) == 0;
    }

  private:
    int number;
};

/// Whether the last failure says that there is no such file.
bool IsMissing() {
    return errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG || errno == ELOOP;
}

/// The system's call again, for as long as a signal interrupts it.
template <class Call> auto Retried(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

[[noreturn]] void ThrowUnread() {
    throw Failure{IsMissing() ? Failure::FileNotFound : Failure::FileAccess};
}

/// All bytes up to the end; one more than a file may have if there are as many.
std::string BytesOf(int file, std::size_t expected) {
    std::string bytes(std::min(expected, LargestFile) + 1, '\0');
    std::size_t length = 0;
    while (length <= LargestFile) {
        if (length == bytes.size()) bytes.resize(std::min(2 * length, LargestFile + 1));
        const auto got =
            Retried([&] { return read(file, bytes.data() + length, bytes.size() - length); });
        if (got < 0) throw Failure{Failure::FileAccess};
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    bytes.resize(length);
    return bytes;
}

bool WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = Retried([&] { return write(file, bytes.data(), bytes.size()); });
        if (written < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Some file systems can't sync; that is no reason to write nothing.
bool Sync(int file) {
    return Retried([&] { return fsync(file); }) == 0 || errno == EINVAL || errno == EROFS;
}

/// What the names of the new files beside a path begin with.
std::string NewStem(const fs::path& path) {
    return path.filename().string().substr(0, LongestStem) + '.';
}

std::string RandomTag() {
    std::random_device random;
    std::string tag;
    for (std::size_t i = 0; i < TagLength; ++i) tag += TagDigits[random() % TagDigits.size()];
    return tag;
}

/// Whether a name is one that RandomTag has gone into: no player gives a file such a name.
bool IsNewName(std::string_view name, std::string_view stem) {
    if (!name.starts_with(stem) || !name.ends_with(NewExtension)) return false;
    const std::string_view tag = name.substr(stem.size());
    return tag.size() == TagLength + NewExtension.size() &&
           tag.find_first_not_of(TagDigits) == TagLength;
}

/// Makes a file of a new name in the folder of a path. Returns its descriptor, -1 on failure.
int MakeBeside(const fs::path& path, mode_t mode, fs::path& name) {
    int file = -1;
    do {
        name = path.parent_path() / (NewStem(path) + RandomTag().append(NewExtension));
        file = Retried(
            [&] { return open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); });
    } while (file < 0 && errno == EEXIST);
    return file;
}

/// The rights of a file that is to be replaced; none if there is no regular file.
std::optional<mode_t> ModeOf(const fs::path& path) {
    struct stat status = {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return status.st_mode & 07777U;
}

} // namespace

std::string ReadFile(const fs::path& path, Sources sources) {
    const bool regularOnly = sources == Sources::RegularFiles;
    struct stat status = {};
    // Looked at before it is opened, as that alone may set a device going.
    if (stat(path.c_str(), &status) != 0) ThrowUnread();
    if (regularOnly && !S_ISREG(status.st_mode)) throw Failure{Failure::FileAccess};
    // And once more behind that, as another may stand there by now.
    const int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | (regularOnly ? O_NONBLOCK : 0);
    const Descriptor file(Retried([&] { return open(path.c_str(), flags); }));
    if (!file.IsOpen() || fstat(*file, &status) != 0) ThrowUnread();
    if (regularOnly && !S_ISREG(status.st_mode)) throw Failure{Failure::FileAccess};
    std::string bytes = BytesOf(*file, static_cast<std::size_t>(status.st_size));
    if (bytes.size() > LargestFile) throw Failure{Failure::FileAccess};
    return bytes;
}

bool ReplaceFile(const fs::path& path, std::string_view bytes) {
    const auto oldMode = ModeOf(path);
    fs::path name;
    Descriptor file(MakeBeside(path, 0666, name));
    if (!file.IsOpen()) return false;
    const bool written = WriteAll(*file, bytes) && (!oldMode || fchmod(*file, *oldMode) == 0) &&
                         Sync(*file) && file.Close();
    if (!written || rename(name.c_str(), path.c_str()) != 0) {
        unlink(name.c_str());
        return false;
    }
    // The rename, too, is to outlast a loss of power.
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const Descriptor parent(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (parent.IsOpen()) Sync(*parent);
    return true;
}

void RemoveLeftovers(const fs::path& path) {
    const std::string stem = NewStem(path);
    std::error_code error;
    for (fs::directory_iterator entry(path.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (!IsNewName(entry->path().filename().string(), stem)) continue;
        if (fs::is_regular_file(entry->symlink_status(ignored))) fs::remove(entry->path(), ignored);
    }
}

bool IsWritableFolder(const fs::path& folder) {
    std::error_code error;
    return fs::is_directory(folder, error) && access(folder.c_str(), W_OK | X_OK) == 0;
}

FolderLock::FolderLock(const fs::path& folder)
    : descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (descriptor < 0) return;
    const auto end = std::chrono::steady_clock::now() + LongestWait;
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const bool taken = errno == EWOULDBLOCK || errno == EINTR;
        if (!taken || std::chrono::steady_clock::now() > end) return;
        std::this_thread::sleep_for(BetweenTries);
    }
    held = true;
}

FolderLock::~FolderLock() {
    if (descriptor >= 0) close(descriptor);
}

} // namespace tumbledeep
