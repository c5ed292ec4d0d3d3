// A file system in memory that knows what a power cut may leave of it.
//
// It promises no more than POSIX does. Bytes of a file are sure to be on the disk after a sync of that file,
// names after a sync of their folder; before that, each write may have reached the disk or not, or in part,
// or as zeros, in any order, and so may each change of a name. A rename is one change.
#pragma once

#include "file/file_operations.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lodge::testing {

/// The names of the one folder and what their files hold.
using Disk = std::map<std::string, std::string>;

class MemoryFiles final : public FileOperations {
  public:
    explicit MemoryFiles(std::size_t mostBytesAWrite) : mostBytesAWrite(mostBytesAWrite) {}

    /// Puts a file there that is on the disk already.
    void put(const std::string& name, const std::string& bytes);

    /// What programs see.
    [[nodiscard]] Disk visible() const;
    /// All that may be found after a power cut at this moment.
    [[nodiscard]] std::set<Disk> afterPowerLoss() const;
    /// All that may be found after a power cut at this moment or at any earlier one since the last call; each
    /// is told with the number of the operation before which the power went.
    [[nodiscard]] const std::vector<std::set<Disk>>& moments() const { return history; }

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
    std::uint64_t randomNumber() override { return ++drawn; }

  private:
    struct Write {
        std::size_t at;
        std::string bytes;
    };
    struct File {
        std::string onDisk;
        std::vector<Write> unsynced;
        [[nodiscard]] std::string visible() const;
        [[nodiscard]] std::set<std::string> afterPowerLoss() const;
    };
    /// Names that get another file, or none, in one step.
    using NameChange = std::vector<std::pair<std::string, std::optional<std::size_t>>>;
    using Names = std::map<std::string, std::size_t>;

    [[nodiscard]] Names visibleNames() const;
    void change(NameChange step);
    void remember() { history.push_back(afterPowerLoss()); }

    std::size_t mostBytesAWrite;
    std::vector<File> files;
    Names namesOnDisk;
    std::vector<NameChange> unsyncedNames;
    std::map<int, std::optional<std::size_t>> handles; ///< The file of a handle; none for the folder.
    int lastHandle = 2;
    std::uint64_t drawn = 0;
    std::vector<std::set<Disk>> history;
};

} // namespace lodge::testing
