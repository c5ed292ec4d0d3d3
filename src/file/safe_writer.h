// Stores a file so that, whatever fails, its reader finds the earlier file or the new one, whole: a full
// disk, a quota, a missing right, a folder that vanished, a program that is killed, a power cut.
//
// The bytes go into a new file beside the target, readable by its user alone, and reach the disk before that
// file takes the target's name in one step; then the folder reaches the disk as well. There is no second,
// less safe way: where one of these steps fails the store has failed, and nothing is tried again on a disk
// that has refused to keep data, because a kernel forgets what it could not write and would call a second
// attempt a success.
#pragma once

#include "file/file_operations.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace lodge {

/// The steps of a store, in their order.
enum class StoreStep : std::uint8_t {
    FindTarget,
    OpenFolder,
    Create,
    Write,
    Sync,
    Close,
    Replace,
    SyncFolder
};

struct SafeStoreResult {
    StoreStep step = StoreStep::FindTarget; ///< The step that failed.
    int error = 0;                          ///< Its errno; 0 when the file is stored.
    std::string path;                       ///< The file or folder that the step worked on.

    [[nodiscard]] bool ok() const { return error == 0; }
    /// Whether the target is untouched. After the last two steps it may hold the earlier file or the new one.
    [[nodiscard]] bool leftEarlierFile() const { return step < StoreStep::Replace; }
};

/// Stores `bytes` as the file `path`, replacing one of that name. A symbolic link stays a link: the file that
/// it leads to is replaced. What an interrupted store of the same file left in the folder is removed first,
/// best effort.
[[nodiscard]] SafeStoreResult storeSafely(
    FileOperations& files, const std::string& path, std::string_view bytes);

/// Makes a folder that outlives a power cut; one that is there already is made.
[[nodiscard]] SafeStoreResult makeFolderSafely(FileOperations& files, const std::string& path);

/// Removes a file that nobody needs any more, if it is there. Nothing else of that name is touched, and a
/// failure is no matter: the next store tries again.
void sweepFile(FileOperations& files, const std::string& path);

/// What the user is told in Thai about a store that failed: what could not be done, why, on which file, and
/// that the return is still there. Lines are parted by "\r". Empty for a store that went through.
[[nodiscard]] std::string storeFailureText(const SafeStoreResult& result);

/// The cause alone, in Thai.
[[nodiscard]] std::string failureCause(int error);

} // namespace lodge
