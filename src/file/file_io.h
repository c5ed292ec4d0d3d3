// Files and folders: the one place that touches the disk. Every result is checked; a failure comes back as
// the cause in one line of English, for a log or a command line.
//
// Paths are UTF-8. "\" and "/" both part folders when a path is read, because a path may have been written
// down on the filer's own machine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

struct FileContent {
    std::string bytes;
    std::string error; ///< Empty when the file was read.
    std::string text;  ///< The same for the filer, in Thai.
};

/// The whole file; refused when it is longer than `maxBytes` or no regular file.
FileContent readWholeFile(const std::string& path, std::uint64_t maxBytes);

/// Creates or replaces the file as safe_writer.h does it. The cause when that fails.
std::optional<std::string> writeWholeFile(const std::string& path, std::string_view bytes);

/// Deletes a file; one that is not there is deleted already. The cause when that fails.
std::optional<std::string> removeFile(const std::string& path);

bool fileExists(const std::string& path);

/// The path with "/" between its folders.
std::string nativePath(std::string_view path);

struct PathParts {
    std::string folder; ///< With its closing "/"; empty for a name alone.
    std::string name;
};

/// Cuts a path behind its last "\" or "/".
PathParts splitPath(std::string_view path);

/// A folder path that a file name can be put behind: with a closing "/", empty when `folder` is.
std::string asFolder(std::string_view folder);

} // namespace lodge
