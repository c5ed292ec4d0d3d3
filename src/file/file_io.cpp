#include "file/file_io.h"

#include "file/safe_writer.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodge {

namespace fs = std::filesystem;

namespace {

// Closes a file that was only read: what close says then is no matter.
class ReadHandle {
  public:
    explicit ReadHandle(const std::string& path)
        // Without O_NONBLOCK a pipe that nobody writes into would hold the program for ever.
        : number(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    ReadHandle(const ReadHandle&) = delete;
    ReadHandle& operator=(const ReadHandle&) = delete;
    ~ReadHandle() {
        if (number >= 0) ::close(number);
    }
    [[nodiscard]] int get() const { return number; }

  private:
    int number;
};

FileContent refused(std::string error, std::string_view text) {
    return {{}, std::move(error), fmt::format("ไม่สามารถอ่านไฟล์ข้อมูลได้ ({})", text)};
}

FileContent refusedBySystem(int error) {
    if (error == ENOENT || error == ENOTDIR) return refused("no such file", "ไม่พบไฟล์");
    const bool isForbidden = error == EACCES || error == EPERM;
    return refused(
        std::generic_category().message(error), isForbidden ? "ไม่มีสิทธิ์อ่านไฟล์" : failureCause(error));
}

FileContent tooLarge(std::uint64_t maxBytes) {
    return refused(fmt::format("larger than {} bytes", maxBytes), "ไฟล์ใหญ่เกินกำหนด");
}

// The size that a file claims is a hint at most: some grow while they are read, and those of /proc claim
// nothing.
FileContent readAll(int handle, std::uint64_t maxBytes) {
    FileContent content;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): filled before it is read.
    std::array<char, 65536> buffer;
    while (true) {
        const ssize_t length = ::read(handle, buffer.data(), buffer.size());
        if (length < 0 && errno == EINTR) continue;
        if (length < 0) return refusedBySystem(errno);
        if (length == 0) return content;
        if (content.bytes.size() + static_cast<std::size_t>(length) > maxBytes) return tooLarge(maxBytes);
        content.bytes.append(buffer.data(), static_cast<std::size_t>(length));
    }
}

} // namespace

FileContent readWholeFile(const std::string& path, std::uint64_t maxBytes) {
    // Looked at before it is opened, because opening a device can be an act of its own, and again afterwards.
    struct stat entry {};
    if (::stat(path.c_str(), &entry) < 0) return refusedBySystem(errno);
    if (!S_ISREG(entry.st_mode)) return refused("not a regular file", "ไม่ใช่ไฟล์ธรรมดา");
    const ReadHandle file(path);
    if (file.get() < 0 || ::fstat(file.get(), &entry) < 0) return refusedBySystem(errno);
    if (!S_ISREG(entry.st_mode)) return refused("not a regular file", "ไม่ใช่ไฟล์ธรรมดา");
    if (static_cast<std::uint64_t>(entry.st_size) > maxBytes) return tooLarge(maxBytes);
    return readAll(file.get(), maxBytes);
}

std::optional<std::string> writeWholeFile(const std::string& path, std::string_view bytes) {
    SystemFiles files;
    const SafeStoreResult result = storeSafely(files, path, bytes);
    if (result.ok()) return std::nullopt;
    return std::generic_category().message(result.error);
}

std::optional<std::string> removeFile(const std::string& path) {
    std::error_code error;
    fs::remove(path, error);
    if (error) return error.message();
    return std::nullopt;
}

bool fileExists(const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

std::string nativePath(std::string_view path) {
    std::string native(path);
    std::ranges::replace(native, '\\', '/');
    return native;
}

PathParts splitPath(std::string_view path) {
    const std::string native = nativePath(path);
    const std::size_t slash = native.rfind('/');
    if (slash == std::string::npos) return {"", native};
    return {native.substr(0, slash + 1), native.substr(slash + 1)};
}

std::string asFolder(std::string_view folder) {
    std::string native = nativePath(folder);
    if (!native.empty() && native.back() != '/') native += '/';
    return native;
}

} // namespace lodge
