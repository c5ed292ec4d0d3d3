#include "file/file_operations.h"

#include <climits>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lodge {

namespace {

constexpr mode_t ownersFile = S_IRUSR | S_IWUSR;
constexpr mode_t ownersFolder = S_IRWXU;

int errorOf(int result) { return result < 0 ? errno : 0; }

Outcome<int> opened(int handle) { return {handle, errorOf(handle)}; }

} // namespace

Outcome<int> SystemFiles::createFile(const std::string& path) {
    return opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownersFile));
}

Outcome<int> SystemFiles::openFolder(const std::string& path) {
    return opened(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

Outcome<std::size_t> SystemFiles::write(int handle, std::string_view bytes) {
    const ssize_t taken = ::write(handle, bytes.data(), bytes.size());
    if (taken < 0) return {0, errno};
    return {static_cast<std::size_t>(taken), 0};
}

int SystemFiles::sync(int handle) { return errorOf(::fsync(handle)); }

int SystemFiles::close(int handle) { return errorOf(::close(handle)); }

int SystemFiles::rename(const std::string& from, const std::string& to) {
    return errorOf(std::rename(from.c_str(), to.c_str()));
}

int SystemFiles::removeFile(const std::string& path) { return errorOf(::unlink(path.c_str())); }

int SystemFiles::makeFolder(const std::string& path) { return errorOf(::mkdir(path.c_str(), ownersFolder)); }

Outcome<EntryKind> SystemFiles::kindOf(const std::string& path) {
    struct stat entry {};
    if (::lstat(path.c_str(), &entry) < 0) return {EntryKind::Other, errno};
    if (S_ISREG(entry.st_mode)) return {EntryKind::File, 0};
    if (S_ISDIR(entry.st_mode)) return {EntryKind::Folder, 0};
    if (S_ISLNK(entry.st_mode)) return {EntryKind::Link, 0};
    return {EntryKind::Other, 0};
}

Outcome<std::string> SystemFiles::linkTarget(const std::string& path) {
    std::string target(PATH_MAX, '\0');
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return {{}, errno};
    target.resize(static_cast<std::size_t>(length));
    return {target, 0};
}

Outcome<std::vector<std::string>> SystemFiles::namesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (const std::filesystem::directory_iterator end; !error && entry != end; entry.increment(error))
        names.push_back(entry->path().filename().string());
    return {std::move(names), error.value()};
}

std::uint64_t SystemFiles::randomNumber() {
    std::random_device device;
    return (static_cast<std::uint64_t>(device()) << 32U) | device();
}

} // namespace lodge
