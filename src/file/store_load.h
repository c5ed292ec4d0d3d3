// A return from its packed file into the state, and from the state into its packed file. Both know the names
// that the files bear; neither shows anything: the screens show what comes back.
#pragma once

#include "file/return_file.h"
#include "state/return_state.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

class FileOperations;

/// Names of a stored return, without a folder.
struct ReturnFileNames {
    std::string inner;  ///< The text of encoded lines, as the archive names it.
    std::string packed; ///< What the filer keeps and uploads.
};

/// The names that follow from a return's year, filing and store type and the filer's id.
ReturnFileNames returnFileNames(const ReturnState& state, std::string_view userId);

/// The path of the packed file that an inner file's path belongs to: the same without the "M".
std::string packedPathOf(std::string_view innerPath);

/// Reads the chosen file, clears the return and fills it from the one text inside; nothing is unpacked onto
/// the disk, and whatever the file and its member are called does not matter. Unreadable, with the text to
/// show, when the file is no sound archive of one text (the return is untouched then) or has a line beyond
/// the limits; refused with M121 for a file of another version. A text that is not loaded leaves an empty
/// return. `machineYear` is the year that the machine's calendar shows today. On success the return waits for
/// the flags that the start screen sets: intNewReturn, blnNeedPage2.
ReadResult loadReturn(const std::string& path, ReturnState& state, int machineYear);

/// The same from the text itself, for a stored return in whatever form it lies on the disk (readInnerFile).
ReadResult loadReturnText(std::string_view text, ReturnState& state, int machineYear);

struct StoreResult {
    std::string packedPath;
    std::string error; ///< Text to show; empty when stored.
};

/// Stores the return in the folder by safe_writer.h: the text packed in memory, the archive written. The path
/// of the inner file stays in strFileName, although no such file is made; one that an interrupted store of
/// another program left is removed. The archive's member bears the time `now`. Nothing is stored when the id
/// or the year would lead out of the folder.
StoreResult storeReturn(
    ReturnState& state, std::string_view folder, std::string_view userId, std::chrono::local_seconds now);

/// The same through other file operations than the machine's own.
StoreResult storeReturn(FileOperations& files, ReturnState& state, std::string_view folder,
    std::string_view userId, std::chrono::local_seconds now);

/// The inner file's bytes of a stored return in whatever form it lies on the disk: packed, recognised by its
/// content, or unpacked. Its lines are within the reading limits.
struct InnerFile {
    std::string bytes;
    std::string error; ///< Cause in English; empty when read.
};
InnerFile readInnerFile(const std::string& path);

} // namespace lodge
