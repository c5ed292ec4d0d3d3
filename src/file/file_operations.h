// The system calls that a store stands on, one virtual function each, so that a test can let any of them
// fail, kill the program before it, or play what a power cut leaves of it. Nothing here decides anything;
// safe_writer.h does.
//
// Every function answers with the errno of its call, 0 when it went through. None is repeated inside. Paths
// are UTF-8, folders parted by "/".
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// What a system call gave, or the errno of its failure.
template <typename T>
struct Outcome {
    T value{};
    int error = 0;

    [[nodiscard]] bool ok() const { return error == 0; }
};

enum class EntryKind : std::uint8_t { File, Folder, Link, Other };

class FileOperations {
  public:
    FileOperations() = default;
    FileOperations(const FileOperations&) = delete;
    FileOperations& operator=(const FileOperations&) = delete;
    virtual ~FileOperations() = default;

    /// Creates a file that its user alone can read, and opens it for writing; EEXIST when anything has that
    /// name.
    virtual Outcome<int> createFile(const std::string& path) = 0;
    /// Opens a folder for no more than sync().
    virtual Outcome<int> openFolder(const std::string& path) = 0;
    /// How many of the bytes were taken, which may be fewer than were given.
    virtual Outcome<std::size_t> write(int handle, std::string_view bytes) = 0;
    /// Returns once all that was written, or the names of the folder, would outlive a power cut.
    virtual int sync(int handle) = 0;
    /// Whatever it answers, the handle is gone.
    virtual int close(int handle) = 0;
    /// Gives the file another name in one step; a file that had that name is gone in the same step.
    virtual int rename(const std::string& from, const std::string& to) = 0;
    virtual int removeFile(const std::string& path) = 0;
    virtual int makeFolder(const std::string& path) = 0;
    /// What has that name; a link counts as a link, wherever it leads.
    virtual Outcome<EntryKind> kindOf(const std::string& path) = 0;
    /// What a link says, which may be relative to the link's folder.
    virtual Outcome<std::string> linkTarget(const std::string& path) = 0;
    virtual Outcome<std::vector<std::string>> namesIn(const std::string& folder) = 0;
    /// A number that no other process is likely to draw.
    virtual std::uint64_t randomNumber() = 0;
};

/// The machine's own file system.
class SystemFiles final : public FileOperations {
  public:
    Outcome<int> createFile(const std::string& path) override;
    Outcome<int> openFolder(const std::string& path) override;
    Outcome<std::size_t> write(int handle, std::string_view bytes) override;
    int sync(int handle) override;
    int close(int handle) override;
    int rename(const std::string& from, const std::string& to) override;
    int removeFile(const std::string& path) override;
    int makeFolder(const std::string& path) override;
    Outcome<EntryKind> kindOf(const std::string& path) override;
    Outcome<std::string> linkTarget(const std::string& path) override;
    Outcome<std::vector<std::string>> namesIn(const std::string& folder) override;
    std::uint64_t randomNumber() override;
};

} // namespace lodge
